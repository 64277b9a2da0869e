#include <tovukit_io/web/TovuSwiftUIWrapper.h>

#include <tovukit_io/model/TovuLog.h>
#include <tovukit_io/viewmodel/TovuPlatformColors.h>
#include <tovukit_io/web/TovuSurveyViewModel.h>
#include <tovukit_io/web/TovuSwiftUIWrapperAttached.h>
#include <tovukit_io/web/TovuUserContentController.h>

#include <QQmlComponent>
#include <QQmlEngine>
#include <QQmlWebChannel>
#include <QQuickWindow>

namespace {

// What the wrapper shows: the web view, the spinner over it and the close
// button. Built from text so the library needs no QML files of its own at run time.
constexpr QLatin1StringView contentSource{R"QML(
import QtQuick
import QtWebEngine

Item {
    id: root
    required property QtObject model
    required property QtObject channel
    required property var scripts
    property color background: "white"
    property color closeColor: "black"
    property color spinnerColor: "#8E8E93"

    function load(address) { web.url = address }
    function empty() { web.loadHtml("<html><body></body></html>") }
    function stop() { web.stop() }

    Rectangle { anchors.fill: parent; color: root.background }

    WebEngineView {
        id: web
        objectName: "surveyWebView"
        anchors.fill: parent
        webChannel: root.channel
        webChannelWorld: WebEngineScript.ApplicationWorld
        Component.onCompleted: userScripts.collection = root.scripts
        onLoadingChanged: function (info) {
            if (info.status === WebEngineView.LoadSucceededStatus)
                root.model.pageFinished()
            else if (info.status === WebEngineView.LoadFailedStatus)
                root.model.pageFailed(info.errorString)
        }
        onNavigationRequested: function (request) {
            const clicked = request.navigationType === WebEngineNavigationRequest.LinkClickedNavigation
            if (!root.model.acceptNavigation(request.url, clicked))
                request.reject()
        }
        onNewWindowRequested: function (request) {
            if (request.userInitiated)
                root.model.acceptNavigation(request.requestedUrl, true)
        }
    }

    Item {
        id: loader
        objectName: "loader"
        width: 24; height: 24
        anchors.centerIn: parent
        visible: root.model.isLoading
        property int step: 0
        Timer { interval: 83; repeat: true; running: loader.visible; onTriggered: loader.step = (loader.step + 1) % 12 }
        Repeater {
            model: 12
            Rectangle {
                required property int index
                x: loader.width / 2 - width / 2; y: 1
                width: 2.6; height: 6.6; radius: 1.3
                color: root.spinnerColor
                opacity: 1 - 0.75 * ((loader.step - index + 12) % 12) / 11
                transform: Rotation { origin.x: 1.3; origin.y: loader.height / 2 - 1; angle: index * 30 }
            }
        }
    }

    Text {
        id: closeButton
        objectName: "closeButton"
        text: "X"
        font.pixelSize: 20
        color: root.closeColor
        width: 30; height: 30
        horizontalAlignment: Text.AlignHCenter; verticalAlignment: Text.AlignVCenter
        anchors { top: parent.top; topMargin: 10; right: parent.right; rightMargin: 10 }
        visible: root.model.isCloseButtonVisible
        Accessible.role: Accessible.Button
        Accessible.name: "Close survey"
        MouseArea { anchors.fill: parent; onClicked: root.model.closeTapped() }
    }
}
)QML"};

QQmlComponent *contentComponent(QQmlEngine *engine)
{
    // One compiled component per engine.
    static const char *property = "_tovukit_surveyContent";
    if (auto *component = engine->property(property).value<QQmlComponent *>())
        return component;
    auto *component = new QQmlComponent(engine, engine);
    component->setData(QByteArray(contentSource.data(), contentSource.size()),
                       QUrl(QStringLiteral("qrc:/tovukit/web/TovuSurveyContent.qml")));
    if (component->isError())
        TovuLog::print(">>> Web survey view cannot be built: " + component->errorString().toStdString());
    engine->setProperty(property, QVariant::fromValue(component));
    return component;
}

std::optional<QColor> colorIn(const QVariantMap &map, const QString &key)
{
    const QVariant value = map.value(key);
    if (!value.isValid())
        return std::nullopt;
    const QColor color = value.value<QColor>();
    return color.isValid() ? std::optional(color) : std::nullopt;
}

} // namespace

void TovuSwiftUIWrapper::registerQmlTypes()
{
    qmlRegisterType<TovuSwiftUIWrapper>("TovuKit", 1, 0, "TovuSwiftUIWrapper");
    qmlRegisterUncreatableType<TovuSurveyViewModel>("TovuKit", 1, 0, "TovuSurveyViewModel",
                                                    QStringLiteral("Each TovuSwiftUIWrapper has its own"));
}

TovuSwiftUIWrapperAttached *TovuSwiftUIWrapper::qmlAttachedProperties(QObject *object)
{
    return new TovuSwiftUIWrapperAttached(object);
}

TovuSwiftUIWrapper::TovuSwiftUIWrapper(QQuickItem *parent)
    : QQuickItem(parent)
    , m_viewModel(new TovuSurveyViewModel(this))
    , m_surveyResponseHandler(new TovuUserContentController(
          [model = QPointer(m_viewModel)](const QString &body) {
              if (model)
                  model->receiveScriptMessage(body);
          },
          this))
    , m_channel(new QQmlWebChannel(this))
{
    m_surveyResponseHandler->publishOn(m_channel);
    m_viewModel->setSurveyDelegate(this);
    connect(m_viewModel, &TovuSurveyViewModel::closeRequested, this, &TovuSwiftUIWrapper::close);
    connect(m_viewModel, &TovuSurveyViewModel::loadTimedOut, this, [this] {
        if (m_content)
            QMetaObject::invokeMethod(m_content, "stop");
    });
}

TovuSwiftUIWrapper::~TovuSwiftUIWrapper()
{
    // The web view goes first, while the channel it uses is still there.
    delete m_content.data();
}

void TovuSwiftUIWrapper::componentComplete()
{
    QQuickItem::componentComplete();
    if (QQmlEngine *engine = qmlEngine(this))
        build(engine);
}

void TovuSwiftUIWrapper::build(QQmlEngine *engine)
{
    QQmlComponent *component = contentComponent(engine);
    if (!component->isReady())
        return;
    const QVariantMap properties{
        {QStringLiteral("model"), QVariant::fromValue(m_viewModel)},
        {QStringLiteral("channel"), QVariant::fromValue(m_channel)},
        {QStringLiteral("scripts"), TovuUserContentController::scriptDescriptions()},
    };
    QObject *object = component->createWithInitialProperties(properties, qmlContext(this));
    m_content = qobject_cast<QQuickItem *>(object);
    if (!m_content) {
        delete object;
        return;
    }
    m_content->setParent(this);
    m_content->setParentItem(this);
    m_content->setSize(size());
    connect(this, &QQuickItem::widthChanged, m_content, [this] { m_content->setWidth(width()); });
    connect(this, &QQuickItem::heightChanged, m_content, [this] { m_content->setHeight(height()); });
    applyTheme();
    reload();
}

void TovuSwiftUIWrapper::setSurveyURL(const QString &url)
{
    if (m_surveyURL == url)
        return;
    m_surveyURL = url;
    Q_EMIT surveyURLChanged();
    if (m_content)
        reload();
}

void TovuSwiftUIWrapper::reload()
{
    const QUrl url = m_viewModel->beginLoad(m_surveyURL);
    if (m_content && !url.isEmpty())
        QMetaObject::invokeMethod(m_content, "load", Q_ARG(QVariant, QVariant(url)));
}

void TovuSwiftUIWrapper::setDelegate(QObject *delegate)
{
    if (m_delegate == delegate)
        return;
    m_delegate = delegate;
    Q_EMIT delegateChanged();
}

void TovuSwiftUIWrapper::setSurveyVisible(bool visible)
{
    if (m_isSurveyVisible == visible)
        return;
    m_isSurveyVisible = visible;
    setVisible(visible);
    Q_EMIT isSurveyVisibleChanged();
}

void TovuSwiftUIWrapper::setTheme(std::optional<TovuAppTheme> theme)
{
    if (m_theme == theme)
        return;
    m_theme = std::move(theme);
    applyTheme();
    Q_EMIT themeChanged();
}

QVariantMap TovuSwiftUIWrapper::themeMap() const
{
    QVariantMap map;
    if (!m_theme)
        return map;
    const auto put = [&map](const char *key, const auto &value) {
        if (value)
            map.insert(QLatin1StringView(key), QVariant::fromValue(*value));
    };
    put("primaryColor", m_theme->primaryColor);
    put("backgroundColor", m_theme->backgroundColor);
    put("textColor", m_theme->textColor);
    put("fontFamily", m_theme->fontFamily);
    put("cornerRadius", m_theme->cornerRadius);
    return map;
}

void TovuSwiftUIWrapper::setThemeMap(const QVariantMap &map)
{
    if (map.isEmpty())
        return setTheme(std::nullopt);
    TovuAppTheme theme;
    theme.primaryColor = colorIn(map, QStringLiteral("primaryColor"));
    theme.backgroundColor = colorIn(map, QStringLiteral("backgroundColor"));
    theme.textColor = colorIn(map, QStringLiteral("textColor"));
    if (map.contains(QStringLiteral("fontFamily")))
        theme.fontFamily = map.value(QStringLiteral("fontFamily")).toString();
    if (map.contains(QStringLiteral("cornerRadius")))
        theme.cornerRadius = map.value(QStringLiteral("cornerRadius")).toReal();
    setTheme(theme);
}

void TovuSwiftUIWrapper::applyTheme()
{
    // Behind the page while it loads, and the close button's title.
    if (!m_content)
        return;
    const auto background = m_theme ? m_theme->backgroundColor : std::nullopt;
    const auto text = m_theme ? m_theme->textColor : std::nullopt;
    m_content->setProperty("background",
                           background.value_or(TovuPlatformColors::color(TovuPlatformColors::Role::systemBackground)));
    m_content->setProperty("closeColor", text.value_or(QColor(Qt::black)));
}

void TovuSwiftUIWrapper::close()
{
    if (m_content)
        QMetaObject::invokeMethod(m_content, "empty");
    setSurveyVisible(false);
    if (m_removeOnClose)
        deleteLater();
}

void TovuSwiftUIWrapper::handleSurveyLoaded(const QVariantMap &response)
{
    if (m_surveyDelegate)
        m_surveyDelegate->handleSurveyLoaded(response);
    if (m_delegate) {
        QMetaObject::invokeMethod(m_delegate, "handleSurveyLoaded", Q_ARG(QVariant, QVariant(response)));
    }
    Q_EMIT surveyLoaded(response);
}

TovuSwiftUIWrapper *TovuSwiftUIWrapper::presentOver(QQuickWindow *window, QQmlEngine *engine, const QString &surveyURL,
                                                    QObject *delegate)
{
    if (!window || !engine)
        return nullptr;
    auto *wrapper = new TovuSwiftUIWrapper(window->contentItem());
    QQmlEngine::setObjectOwnership(wrapper, QQmlEngine::CppOwnership);
    wrapper->m_removeOnClose = true;
    wrapper->setZ(1e6);
    wrapper->setSize(window->contentItem()->size());
    connect(window->contentItem(), &QQuickItem::widthChanged, wrapper,
            [wrapper, window] { wrapper->setWidth(window->contentItem()->width()); });
    connect(window->contentItem(), &QQuickItem::heightChanged, wrapper,
            [wrapper, window] { wrapper->setHeight(window->contentItem()->height()); });
    wrapper->m_viewModel->setGetSurveyLoadedResponse(true);
    wrapper->m_surveyURL = surveyURL;
    wrapper->setDelegate(delegate);
    wrapper->build(engine);
    return wrapper;
}
