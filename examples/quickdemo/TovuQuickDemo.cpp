#include "TovuQuickDemo.h"

#include "TovuDemoBackend.h"
#include "TovuDemoLook.h"
#include "TovuDemoQuickPagePlayer.h"
#include "TovuDemoSession.h"
#include "TovuDemoStorefront.h"

#include <tovukit_io/quick/TovuQuickSheet.h>

#include <QGuiApplication>
#include <QQmlApplicationEngine>
#include <QQuickItem>
#include <QQuickWindow>
#include <QScreen>
#include <QUrl>

// Generated with the module's types; its file also registers the module itself.
void qml_register_types_TovuQuickDemo();

// External, so no compiler drops it and the reference that keeps the module's types in the program.
void (*tovuQuickDemoModuleRegistration)() = &qml_register_types_TovuQuickDemo;

namespace {

// The log stops growing after this many lines; the oldest go.
constexpr int maximumLogLines = 5000;

const QUrl mainQml(QStringLiteral("qrc:/qt-project.org/imports/TovuQuickDemo/Main.qml"));

} // namespace

TovuQuickDemo::TovuQuickDemo(TovuDemoBackend &backend, TovuDemoSession &session, QObject *parent)
    : QObject(parent)
    , m_backend(backend)
    , m_session(session)
    , m_activity(backend, session)
    , m_lightPalette(QGuiApplication::palette())
{
    connect(&m_activity, &TovuDemoActivity::lineAdded, this, &TovuQuickDemo::appendLine);
    connect(&m_activity, &TovuDemoActivity::storedResponsesChanged, this, &TovuQuickDemo::listStoredResponses);
    connect(&session, &TovuDemoSession::managerChanged, this, &TovuQuickDemo::managerChanged);
    connect(&session, &TovuDemoSession::targetChanged, this, &TovuQuickDemo::configuredIdChanged);
    connect(&session, &TovuDemoSession::onlineChanged, this, [this] {
        m_switching = false;
        Q_EMIT onlineChanged();
    });

    m_engine = std::make_unique<QQmlApplicationEngine>();
    m_engine->setInitialProperties({{QStringLiteral("demo"), QVariant::fromValue(this)}});
    m_engine->load(mainQml);
    const QList<QObject *> roots = m_engine->rootObjects();
    m_window = roots.isEmpty() ? nullptr : qobject_cast<QQuickWindow *>(roots.first());
}

TovuQuickDemo::~TovuQuickDemo()
{
    // The window and the sheets in it go before the session they show.
    m_engine.reset();
}

QQuickWindow *TovuQuickDemo::window() const
{
    return m_window;
}

QQuickItem *TovuQuickDemo::hostScreen() const
{
    return m_window ? m_window->property("hostScreen").value<QQuickItem *>() : nullptr;
}

QObject *TovuQuickDemo::manager() const
{
    return &m_session.manager();
}

QString TovuQuickDemo::backendUrl() const
{
    return m_backend.url();
}

QString TovuQuickDemo::apiKey() const
{
    return QString::fromLatin1(TovuDemoBackend::apiKey);
}

QVariantList TovuQuickDemo::samples() const
{
    QVariantList list;
    for (const TovuDemoSample &sample : m_backend.samples())
        list << QVariantMap{{QStringLiteral("stem"), sample.stem},
                            {QStringLiteral("title"), sample.title.isEmpty() ? sample.stem : sample.title},
                            {QStringLiteral("surveyId"), sample.surveyId},
                            {QStringLiteral("collectorId"), sample.collectorId}};
    return list;
}

QStringList TovuQuickDemo::sampleSurveyIds() const
{
    return m_session.sampleSurveyIds();
}

bool TovuQuickDemo::isBySurveyId() const
{
    return m_session.target() == TovuDemoSession::Target::survey;
}

QString TovuQuickDemo::targetId() const
{
    return m_session.targetId();
}

int TovuQuickDemo::sampleIndex() const
{
    const auto &samples = m_backend.samples();
    for (std::size_t i = 0; i < samples.size(); ++i) {
        if (samples[i].surveyId == targetId() || samples[i].collectorId == targetId())
            return static_cast<int>(i);
    }
    return -1;
}

QString TovuQuickDemo::themeName() const
{
    switch (m_theme) {
    case TovuDemoOptions::Theme::host:
        return QStringLiteral("host");
    case TovuDemoOptions::Theme::primaryColor:
        return QStringLiteral("primaryColor");
    case TovuDemoOptions::Theme::survey:
        break;
    }
    return QStringLiteral("survey");
}

QVariantMap TovuQuickDemo::colors() const
{
    const TovuDemoLook::HostColors c = TovuDemoLook::hostColors(m_dark);
    return {{QStringLiteral("background"), c.background}, {QStringLiteral("text"), c.text},
            {QStringLiteral("secondary"), c.secondary},   {QStringLiteral("card"), c.card},
            {QStringLiteral("separator"), c.separator},   {QStringLiteral("brand"), c.brand},
            {QStringLiteral("onBrand"), c.onBrand},       {QStringLiteral("alert"), c.alert}};
}

QVariantMap TovuQuickDemo::storefront() const
{
    return TovuDemoStorefront::freshBasket().toVariantMap();
}

bool TovuQuickDemo::isOnline() const
{
    return m_session.isOnline();
}

void TovuQuickDemo::setShowingStoredResponses(bool showing)
{
    if (showing == m_showingStored)
        return;
    m_showingStored = showing;
    Q_EMIT showingStoredResponsesChanged();
}

void TovuQuickDemo::configureId(bool bySurveyId, const QString &id)
{
    if (!id.trimmed().isEmpty())
        configure(bySurveyId ? TovuDemoSession::Target::survey : TovuDemoSession::Target::collector, id.trimmed());
}

void TovuQuickDemo::chooseSample(int index)
{
    const auto &samples = m_backend.samples();
    if (index < 0 || static_cast<std::size_t>(index) >= samples.size())
        return;
    m_chosenSample = index;
    const TovuDemoSample &sample = samples[static_cast<std::size_t>(index)];
    configureId(isBySurveyId(), isBySurveyId() ? sample.surveyId : sample.collectorId);
}

void TovuQuickDemo::chooseKind(bool bySurveyId)
{
    const auto &samples = m_backend.samples();
    const int index = sampleIndex() >= 0 ? sampleIndex() : m_chosenSample;
    if (index < 0 || static_cast<std::size_t>(index) >= samples.size())
        return;
    const TovuDemoSample &sample = samples[static_cast<std::size_t>(index)];
    configureId(bySurveyId, bySurveyId ? sample.surveyId : sample.collectorId);
}

void TovuQuickDemo::setLook(bool dark, const QString &theme)
{
    const auto chosen = theme == u"host" ? TovuDemoOptions::Theme::host
        : theme == u"primaryColor"       ? TovuDemoOptions::Theme::primaryColor
                                         : TovuDemoOptions::Theme::survey;
    setLook(dark, chosen, m_primaryColor);
}

void TovuQuickDemo::setLook(bool dark, TovuDemoOptions::Theme theme, const QColor &primaryColor)
{
    m_dark = dark;
    m_theme = theme;
    if (primaryColor.isValid())
        m_primaryColor = primaryColor;
    TovuDemoLook::apply(m_session.manager(), dark, theme, m_primaryColor, m_lightPalette);
    Q_EMIT lookChanged();
}

bool TovuQuickDemo::showsProgress() const
{
    return TovuDemoLook::showsProgress();
}

void TovuQuickDemo::setShowsProgress(bool shows)
{
    note(shows ? tr("configureTheme(showsProgress: true)") : tr("configureTheme(showsProgress: false)"));
    TovuDemoLook::setShowsProgress(m_session.manager(), shows);
    Q_EMIT lookChanged();
}

void TovuQuickDemo::setOnline(bool online)
{
    m_switching = true;
    Q_EMIT onlineChanged();
    m_session.setOnline(online);
}

void TovuQuickDemo::note(const QString &text)
{
    m_activity.note(text);
}

void TovuQuickDemo::refreshStoredResponses()
{
    m_activity.refreshStoredResponses();
}

void TovuQuickDemo::appendLine(TovuDemoActivity::Source source, const QString &text)
{
    if (m_log.rowCount() >= maximumLogLines)
        m_log.removeRows(0, m_log.rowCount() - maximumLogLines + 1);
    const int row = m_log.rowCount();
    m_log.insertRows(row, 1);
    m_log.setData(m_log.index(row), TovuDemoActivity::format(source, text));
}

void TovuQuickDemo::listStoredResponses(const TovuDemoStoredResponses &responses)
{
    m_storedResponses.clear();
    for (const TovuDemoStoredResponses::Entry &entry : responses.entries()) {
        const QString title = m_activity.titleOf(entry.surveyId);
        m_storedResponses << QVariantMap{{QStringLiteral("summary"), entry.summary(title)},
                                         {QStringLiteral("details"), entry.details()},
                                         {QStringLiteral("json"), entry.prettyJson}};
    }
    Q_EMIT storedResponsesChanged();
}

void TovuQuickDemo::configure(TovuDemoSession::Target target, const QString &id)
{
    m_activity.configure(target, id);
}

QObject *TovuQuickDemo::host() const
{
    return hostScreen();
}

std::unique_ptr<TovuDemoPagePlayer> TovuQuickDemo::createPagePlayer()
{
    return std::make_unique<TovuDemoQuickPagePlayer>([this] { return m_session.manager().quickSheet(); }, hostScreen());
}

void TovuQuickDemo::showStoredResponses()
{
    setShowingStoredResponses(true);
}

QImage TovuQuickDemo::picture()
{
    return m_window ? m_window->grabWindow() : QImage();
}

void TovuQuickDemo::open(bool fitToScreen)
{
    if (!m_window)
        return;
    if (const QScreen *screen = m_window->screen(); fitToScreen && screen) {
        const QSize available = screen->availableGeometry().size() - QSize(40, 60);
        m_window->resize(m_window->size().boundedTo(available));
    }
    m_window->show();
}
