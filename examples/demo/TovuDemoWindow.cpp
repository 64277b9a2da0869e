#include "TovuDemoWindow.h"

#include "TovuDemoActivityPane.h"
#include "TovuDemoBackend.h"
#include "TovuDemoControlPanel.h"
#include "TovuDemoHostScreen.h"
#include "TovuDemoLook.h"
#include "TovuDemoPhoneFrame.h"
#include "TovuDemoStoredResponses.h"
#include "TovuDemoWidgetPagePlayer.h"
#ifdef TOVU_DEMO_WEB
#include "TovuDemoWebPanel.h"
#endif

#include <tovukit_io/ui/TovuToasterView.h>

#include <QApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QScreen>
#include <QStyle>
#include <QVBoxLayout>

TovuDemoWindow::TovuDemoWindow(TovuDemoBackend &backend, TovuDemoSession &session, QWidget *parent)
    : QWidget(parent)
    , m_backend(backend)
    , m_session(session)
    , m_activityLog(backend, session)
{
    setWindowTitle(tr("TovuKit demo"));
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(16, 16, 16, 16);
    layout->setSpacing(16);

    m_screen = new TovuDemoHostScreen;
    layout->addWidget(new TovuDemoPhoneFrame(m_screen, this), 0, Qt::AlignTop);

    auto *side = new QVBoxLayout;
    side->setSpacing(10);
    auto *title = new QLabel(tr("TovuKit demo"), this);
    QFont big = title->font();
    big.setPointSizeF(big.pointSizeF() * 1.5);
    big.setBold(true);
    title->setFont(big);
    auto *about = new QLabel(tr("Native surveys over a host app's screen. Backend: tovu-devserver at %1 "
                                "(key %2, %3 sample surveys), in this process.")
                                 .arg(backend.url(), QString::fromLatin1(TovuDemoBackend::apiKey))
                                 .arg(backend.samples().size()),
                             this);
    about->setWordWrap(true);
    about->setTextInteractionFlags(Qt::TextSelectableByMouse);
    side->addWidget(title);
    side->addWidget(about);
    m_controls = new TovuDemoControlPanel(backend.samples(), this);
    side->addWidget(m_controls);
    m_activity = new TovuDemoActivityPane(this);
#ifdef TOVU_DEMO_WEB
    m_webPanel = new TovuDemoWebPanel(backend, m_screen, m_activity, [this] {
        const TovuDemoSample *sample = m_backend.findSample(m_session.targetId());
        return sample ? sample->surveyId : m_session.targetId();
    });
    side->addWidget(m_webPanel);
#endif
    side->addWidget(m_activity, 1);
    auto *sideWidget = new QWidget(this);
    sideWidget->setLayout(side);
    side->setContentsMargins(0, 0, 0, 0);
    sideWidget->setMinimumWidth(440);
    layout->addWidget(sideWidget, 1);

    connectSession();
    connectControls();
    m_controls->setOnline(session.isOnline());
    m_controls->setQueuedCount(session.queuedCount());
    m_controls->setLook(m_dark, m_theme, m_primaryColor);
    resize(sizeHint());
}

TovuDemoWindow::~TovuDemoWindow() = default;

void TovuDemoWindow::connectSession()
{
    connect(&m_activityLog, &TovuDemoActivity::lineAdded, m_activity, &TovuDemoActivityPane::appendLine);
    connect(&m_activityLog, &TovuDemoActivity::storedResponsesChanged, this,
            [this](const TovuDemoStoredResponses &responses) {
                m_activity->setStoredResponses(responses,
                                               [this](const QString &id) { return m_activityLog.titleOf(id); });
            });
    connect(&m_session, &TovuDemoSession::surveyShown, m_controls, &TovuDemoControlPanel::stopCountdown);
    connect(&m_session, &TovuDemoSession::presentationRefused, m_controls, &TovuDemoControlPanel::stopCountdown);
    connect(&m_session, &TovuDemoSession::queueCountChanged, m_controls, &TovuDemoControlPanel::setQueuedCount);
    connect(&m_session, &TovuDemoSession::onlineChanged, this, [this](bool online) {
        m_controls->setOnline(online);
        m_screen->setOnline(online);
    });
}

void TovuDemoWindow::connectControls()
{
    connect(m_controls, &TovuDemoControlPanel::targetChosen, this, &TovuDemoWindow::configure);
    connect(m_controls, &TovuDemoControlPanel::showNowRequested, this, [this] {
        m_activityLog.note(tr("fetchAndPresentSurvey(host)"));
        m_session.showNow(m_screen);
    });
    connect(m_controls, &TovuDemoControlPanel::interceptRequested, this, [this] {
        m_activityLog.note(tr("startIntercept(%1, host)").arg(TovuDemoControlPanel::interceptSeconds));
        m_session.intercept(TovuDemoControlPanel::interceptSeconds, m_screen);
    });
    connect(m_controls, &TovuDemoControlPanel::lowestResponseRequested, this, [this] {
        m_activityLog.note(
            tr("fetchAndPresentLowestResponseSurvey(%1 sample ids, host)").arg(m_backend.samples().size()));
        m_session.showLowestResponse(m_screen);
    });
    connect(m_controls, &TovuDemoControlPanel::lookChanged, this,
            [this](bool dark, TovuDemoOptions::Theme theme) { setLook(dark, theme, m_primaryColor); });
    connect(m_controls, &TovuDemoControlPanel::progressToggled, this, [this](bool shows) {
        m_activityLog.note(shows ? tr("configureTheme(showsProgress: true)")
                                 : tr("configureTheme(showsProgress: false)"));
        TovuDemoLook::setShowsProgress(m_session.manager(), shows);
    });
    connect(m_controls, &TovuDemoControlPanel::onlineRequested, &m_session, &TovuDemoSession::setOnline);
    connect(m_controls, &TovuDemoControlPanel::flushRequested, this, [this] {
        m_activityLog.note(tr("flushQueue()"));
        m_session.flushQueue();
    });
    connect(m_activity, &TovuDemoActivityPane::refreshRequested, &m_activityLog,
            &TovuDemoActivity::refreshStoredResponses);
}

void TovuDemoWindow::configure(TovuDemoSession::Target target, const QString &id)
{
    m_controls->setTarget(target, id);
    m_activityLog.configure(target, id);
}

QObject *TovuDemoWindow::host() const
{
    return m_screen;
}

std::unique_ptr<TovuDemoPagePlayer> TovuDemoWindow::createPagePlayer()
{
    return std::make_unique<TovuDemoWidgetPagePlayer>([this] { return m_session.manager().toasterView(); }, m_screen);
}

void TovuDemoWindow::showStoredResponses()
{
    m_activity->showStoredResponses();
}

QImage TovuDemoWindow::picture()
{
    return grab().toImage();
}

void TovuDemoWindow::open(bool fitToScreen)
{
    if (fitToScreen)
        this->fitToScreen();
    show();
}

void TovuDemoWindow::setLook(bool dark, TovuDemoOptions::Theme theme, const QColor &primaryColor)
{
    m_dark = dark;
    m_theme = theme;
    if (primaryColor.isValid())
        m_primaryColor = primaryColor;
    TovuDemoLook::apply(m_session.manager(), dark, theme, m_primaryColor, QApplication::style()->standardPalette());
    m_controls->setLook(dark, theme, m_primaryColor);
    m_controls->setShowsProgress(TovuDemoLook::showsProgress());
}

void TovuDemoWindow::fitToScreen()
{
    const QScreen *screen = this->screen() ? this->screen() : QGuiApplication::primaryScreen();
    if (!screen)
        return;
    const QSize available = screen->availableGeometry().size() - QSize(40, 60);
    resize(sizeHint().boundedTo(available).expandedTo(minimumSizeHint()));
}
