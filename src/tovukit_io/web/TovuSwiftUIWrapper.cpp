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

// What the wrapper shows (qml/TovuSurveyContent.qml), where the module puts it.
QUrl contentUrl()
{
    return QUrl(QStringLiteral("qrc:/qt-project.org/imports/TovuKit/Web/TovuSurveyContent.qml"));
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
    // The engine keeps the compiled file, so a component per wrapper costs little.
    QQmlComponent component(engine, contentUrl());
    if (!component.isReady()) {
        TovuLog::print(">>> Web survey view cannot be built: " + component.errorString().toStdString());
        return;
    }
    const QVariantMap properties{
        {QStringLiteral("model"), QVariant::fromValue(m_viewModel)},
        {QStringLiteral("channel"), QVariant::fromValue(m_channel)},
        {QStringLiteral("scripts"), TovuUserContentController::scriptDescriptions()},
    };
    QObject *object = component.createWithInitialProperties(properties, qmlContext(this));
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
