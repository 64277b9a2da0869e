#include "TovuDemoWindow.h"

#include "TovuDemoActivityPane.h"
#include "TovuDemoBackend.h"
#include "TovuDemoControlPanel.h"
#include "TovuDemoHostScreen.h"
#include "TovuDemoLook.h"
#include "TovuDemoPhoneFrame.h"
#include "TovuDemoStoredResponses.h"
#ifdef TOVU_DEMO_WEB
#include "TovuDemoWebPanel.h"
#endif

#include <tovukit_io/model/TovuLog.h>

#include <QGuiApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QPointer>
#include <QScreen>
#include <QThread>
#include <QVBoxLayout>

#include <cstdio>

using Source = TovuDemoActivityPane::Source;

TovuDemoWindow::TovuDemoWindow(TovuDemoBackend &backend, TovuDemoSession &session, QWidget *parent)
    : QWidget(parent)
    , m_backend(backend)
    , m_session(session)
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

    // Lines may come from any thread; the log is the GUI thread's.
    TovuLog::setHandler([log = QPointer(this)](std::string_view line) {
        const QString text = QString::fromUtf8(line.data(), static_cast<qsizetype>(line.size()));
        if (!log)
            return;
        if (QThread::currentThread() == log->thread())
            log->logLine(text);
        else
            QMetaObject::invokeMethod(
                log, [log, text] { log->logLine(text); }, Qt::QueuedConnection);
    });

    connectSession();
    connectControls();
    m_controls->setOnline(session.isOnline());
    m_controls->setQueuedCount(session.queuedCount());
    m_controls->setLook(m_dark, m_theme, m_primaryColor);
    resize(sizeHint());
}

TovuDemoWindow::~TovuDemoWindow()
{
    TovuLog::setHandler({});
}

void TovuDemoWindow::logLine(const QString &line)
{
    m_activity->appendLine(Source::library, line);
    if (m_echo) {
        std::fputs(line.toUtf8().constData(), stdout);
        std::fputc('\n', stdout);
        std::fflush(stdout);
    }
}

void TovuDemoWindow::connectSession()
{
    const auto titleOf = [this](const QString &surveyId) {
        const TovuDemoSample *sample = m_backend.sampleForSurvey(surveyId);
        return sample ? QStringLiteral("\"%1\"").arg(sample->title) : surveyId;
    };
    connect(&m_session, &TovuDemoSession::surveyShown, this, [this, titleOf](const QString &id) {
        m_controls->stopCountdown();
        m_activity->appendLine(Source::signal, tr("surveyShown: %1").arg(titleOf(id)));
    });
    connect(&m_session, &TovuDemoSession::surveyDismissed, this, [this](int answered) {
        m_activity->appendLine(Source::signal, tr("surveyDismissed: %1 question(s) answered").arg(answered));
    });
    connect(&m_session, &TovuDemoSession::presentationRefused, this, [this](const QString &reason) {
        m_controls->stopCountdown();
        m_activity->appendLine(Source::signal, tr("presentationRefused: %1").arg(reason));
    });
    connect(&m_session, &TovuDemoSession::responseSent, this, [this](const QString &id) {
        m_activity->appendLine(Source::signal, tr("responseSent: %1").arg(id));
        refreshStoredResponses();
    });
    connect(&m_session, &TovuDemoSession::responseQueued, this, [this](const QString &id, int count) {
        m_activity->appendLine(Source::signal, tr("responseQueued: %1 (%2 waiting)").arg(id).arg(count));
    });
    connect(&m_session, &TovuDemoSession::queueFlushed, this, [this](int sent, int failed) {
        m_activity->appendLine(Source::signal, tr("queueFlushed: %1 sent, %2 failed").arg(sent).arg(failed));
        refreshStoredResponses();
    });
    connect(&m_session, &TovuDemoSession::queueCountChanged, m_controls, &TovuDemoControlPanel::setQueuedCount);
    connect(&m_session, &TovuDemoSession::onlineChanged, this, [this](bool online) {
        m_controls->setOnline(online);
        if (online == m_screen->isOnline())
            return;
        m_screen->setOnline(online);
        m_activity->appendLine(Source::demo,
                               online ? tr("Online: the backend answers and the path monitor reports "
                                           "the network, so the manager flushes its queue")
                                      : tr("Offline: the backend closes every connection and the "
                                           "path monitor reports no network"));
    });
    connect(&m_session, &TovuDemoSession::note, this,
            [this](const QString &text) { m_activity->appendLine(Source::demo, text); });
}

void TovuDemoWindow::connectControls()
{
    connect(m_controls, &TovuDemoControlPanel::targetChosen, this, &TovuDemoWindow::configure);
    connect(m_controls, &TovuDemoControlPanel::showNowRequested, this, [this] {
        m_activity->appendLine(Source::demo, tr("fetchAndPresentSurvey(host)"));
        m_session.showNow(m_screen);
    });
    connect(m_controls, &TovuDemoControlPanel::interceptRequested, this, [this] {
        m_activity->appendLine(Source::demo,
                               tr("startIntercept(%1, host)").arg(TovuDemoControlPanel::interceptSeconds));
        m_session.intercept(TovuDemoControlPanel::interceptSeconds, m_screen);
    });
    connect(m_controls, &TovuDemoControlPanel::lowestResponseRequested, this, [this] {
        m_activity->appendLine(
            Source::demo,
            tr("fetchAndPresentLowestResponseSurvey(%1 sample ids, host)").arg(m_backend.samples().size()));
        m_session.showLowestResponse(m_screen);
    });
    connect(m_controls, &TovuDemoControlPanel::lookChanged, this,
            [this](bool dark, TovuDemoOptions::Theme theme) { setLook(dark, theme, m_primaryColor); });
    connect(m_controls, &TovuDemoControlPanel::onlineRequested, &m_session, &TovuDemoSession::setOnline);
    connect(m_controls, &TovuDemoControlPanel::flushRequested, this, [this] {
        m_activity->appendLine(Source::demo, tr("flushQueue()"));
        m_session.flushQueue();
    });
    connect(m_activity, &TovuDemoActivityPane::refreshRequested, this, &TovuDemoWindow::refreshStoredResponses);
}

void TovuDemoWindow::configure(TovuDemoSession::Target target, const QString &id)
{
    m_controls->setTarget(target, id);
    m_activity->appendLine(
        Source::demo,
        target == TovuDemoSession::Target::collector
            ? tr("configure(\"%1\", collectorId \"%2\", \"eu\")").arg(QString::fromLatin1(TovuDemoBackend::apiKey), id)
            : tr("configure(\"%1\", surveyId \"%2\", \"eu\")").arg(QString::fromLatin1(TovuDemoBackend::apiKey), id));
    m_session.configure(target, id);
}

void TovuDemoWindow::setLook(bool dark, TovuDemoOptions::Theme theme, const QColor &primaryColor)
{
    m_dark = dark;
    m_theme = theme;
    if (primaryColor.isValid())
        m_primaryColor = primaryColor;
    TovuDemoLook::apply(m_session.manager(), dark, theme, m_primaryColor);
    m_controls->setLook(dark, theme, m_primaryColor);
}

void TovuDemoWindow::refreshStoredResponses()
{
    m_backend.fetchStoredResponses([self = QPointer(this)](std::optional<QByteArray> body) {
        if (!self)
            return;
        if (const auto responses = body ? TovuDemoStoredResponses::parse(*body) : std::nullopt) {
            self->m_activity->setStoredResponses(*responses, [self](const QString &surveyId) {
                const TovuDemoSample *sample = self ? self->m_backend.sampleForSurvey(surveyId) : nullptr;
                return sample ? sample->title : QString();
            });
        } else {
            self->m_activity->appendLine(Source::demo, tr("Could not read the stored responses"));
        }
        Q_EMIT self->storedResponsesRefreshed();
    });
}

void TovuDemoWindow::fitToScreen()
{
    const QScreen *screen = this->screen() ? this->screen() : QGuiApplication::primaryScreen();
    if (!screen)
        return;
    const QSize available = screen->availableGeometry().size() - QSize(40, 60);
    resize(sizeHint().boundedTo(available).expandedTo(minimumSizeHint()));
}
