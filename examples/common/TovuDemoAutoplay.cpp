#include "TovuDemoAutoplay.h"

#include "TovuDemoActivity.h"
#include "TovuDemoBackend.h"
#include "TovuDemoPng.h"
#include "TovuDemoSession.h"
#include "TovuDemoStage.h"
#include "TovuDemoStoredResponses.h"

#include <QDir>
#include <QPointer>

TovuDemoAutoplay::TovuDemoAutoplay(TovuDemoStage &stage, TovuDemoSession &session, TovuDemoBackend &backend,
                                   const TovuDemoSample &sample, Settings settings,
                                   std::function<void(const QString &)> print,
                                   std::function<void(const QString &)> printError, QObject *parent)
    : QObject(parent)
    , m_stage(stage)
    , m_session(session)
    , m_backend(backend)
    , m_sample(sample)
    , m_settings(std::move(settings))
    , m_print(std::move(print))
    , m_printError(std::move(printError))
    , m_player(stage.createPagePlayer())
{
    m_deadline.setSingleShot(true);
    connect(&m_deadline, &QTimer::timeout, this,
            [this] { fail(QStringLiteral("gave up after %1 s").arg(m_settings.timeoutMs / 1000)); });
    connect(m_player.get(), &TovuDemoPagePlayer::pageDone, this, &TovuDemoAutoplay::pageDone);
    connect(m_player.get(), &TovuDemoPagePlayer::finished, this, &TovuDemoAutoplay::surveyPlayed);
    connect(m_player.get(), &TovuDemoPagePlayer::failed, this, &TovuDemoAutoplay::fail);

    connect(&session, &TovuDemoSession::responseSent, this, [this] {
        m_sent = true;
        responseSettled();
    });
    connect(&session, &TovuDemoSession::responseQueued, this, [this](const QString &, int count) {
        m_queued = true;
        m_mostQueued = std::max(m_mostQueued, count);
        responseSettled();
    });
    connect(&session, &TovuDemoSession::queueFlushed, this, [this](int sent, int failed) {
        m_flushed = {sent, failed};
        m_flushDone = m_backOnline;
    });
    connect(&session, &TovuDemoSession::presentationRefused, this,
            [this](const QString &reason) { fail(QStringLiteral("the survey was not shown (%1)").arg(reason)); });
}

TovuDemoAutoplay::~TovuDemoAutoplay() = default;

void TovuDemoAutoplay::start()
{
    m_clock.start();
    m_deadline.start(m_settings.timeoutMs);
    if (!m_settings.screenshotsDir.isEmpty() && !QDir().mkpath(m_settings.screenshotsDir)) {
        fail(QStringLiteral("cannot create the folder %1").arg(m_settings.screenshotsDir));
        return;
    }
    say(QStringLiteral("survey \"%1\" (%2), configured by collector id %3")
            .arg(m_sample.title, m_sample.stem, m_sample.collectorId));
    m_stage.configure(TovuDemoSession::Target::collector, m_sample.collectorId);
    waitForPrefetch();
}

void TovuDemoAutoplay::waitUntil(std::function<bool()> condition, int timeoutMs, std::function<void()> then,
                                 QString whatFailed)
{
    auto *poll = new QTimer(this);
    poll->setInterval(20);
    QElapsedTimer clock;
    clock.start();
    connect(poll, &QTimer::timeout, this,
            [this, poll, clock, condition = std::move(condition), then = std::move(then),
             whatFailed = std::move(whatFailed), timeoutMs] {
                if (!m_done && !condition() && clock.elapsed() <= timeoutMs)
                    return; // not yet
                poll->stop();
                poll->deleteLater();
                if (m_done)
                    return;
                if (condition())
                    then();
                else
                    fail(whatFailed);
            });
    poll->start();
}

void TovuDemoAutoplay::waitForPrefetch()
{
    waitUntil(
        [this] {
            const auto &survey = m_session.manager().survey();
            return survey && QString::fromStdString(survey->id) == m_sample.surveyId;
        },
        10000,
        [this] {
            if (!m_settings.offlineFirst) {
                present();
                return;
            }
            say(QStringLiteral("going offline: the backend stops answering and the path monitor "
                               "reports no network"));
            m_session.setOnline(false);
            waitUntil([this] { return !m_session.isOnline(); }, 5000, [this] { present(); },
                      QStringLiteral("could not go offline"));
        },
        QStringLiteral("the survey was not pre-fetched"));
}

void TovuDemoAutoplay::present()
{
    const std::optional<TovuSurvey> &held = m_session.manager().survey();
    if (!held) {
        fail(QStringLiteral("the survey went away before it was shown"));
        return;
    }
    const TovuSurvey &survey = *held;
    m_pages = static_cast<int>(survey.questions.size()) + (survey.introPage && survey.introPage->enabled ? 1 : 0);
    say(QStringLiteral("showing it over the host app's screen, %1 pages%2")
            .arg(m_pages)
            .arg(m_settings.screenshotsDir.isEmpty()
                     ? QString()
                     : QStringLiteral(", screenshots in %1/").arg(m_settings.screenshotsDir)));
    m_player->setPace(m_settings.pace);
    m_player->setScreenshotsDir(m_settings.screenshotsDir);
    m_player->setPaletteScreenshots(m_settings.paletteScreenshots);
    m_player->start(m_pages);
    m_session.showNow(m_stage.host());
}

void TovuDemoAutoplay::say(const QString &text)
{
    m_print(m_settings.program + QStringLiteral(": ") + text);
}

void TovuDemoAutoplay::pageDone(int number, int pages, const QString &kind, const QString &title, const QString &answer,
                                const QString &)
{
    QString line = QStringLiteral("  %1/%2  %3  %4")
                       .arg(number, 2)
                       .arg(pages)
                       .arg(kind, -17)
                       .arg(title.isEmpty() ? QString() : QStringLiteral("\"%1\"").arg(title));
    if (!answer.isEmpty())
        line += QStringLiteral("  →  ") + answer;
    m_print(line);
}

void TovuDemoAutoplay::surveyPlayed()
{
    m_played = true;
    m_screenshots = m_player->screenshots();
    responseSettled();
}

void TovuDemoAutoplay::responseSettled()
{
    if (m_done || !m_played || !(m_sent || m_queued))
        return;
    if (!m_settings.offlineFirst) {
        if (!m_sent) {
            fail(QStringLiteral("the response was not sent; it waits in the queue"));
            return;
        }
        say(QStringLiteral("response sent"));
        printStored();
        return;
    }
    if (m_sent) {
        fail(QStringLiteral("the response was sent although the app was offline"));
        return;
    }
    comeBackOnline();
}

void TovuDemoAutoplay::comeBackOnline()
{
    if (m_backOnline)
        return;
    m_backOnline = true;
    say(QStringLiteral("response queued (%1 waiting); coming back online").arg(m_mostQueued));
    m_session.setOnline(true);
    waitUntil([this] { return m_flushDone; }, 15000,
              [this] {
                  say(QStringLiteral("the path monitor reported the network and the manager flushed "
                                     "its queue: %1 sent, %2 failed, %3 waiting")
                          .arg(m_flushed.first)
                          .arg(m_flushed.second)
                          .arg(m_session.queuedCount()));
                  if (m_flushed.second != 0 || m_flushed.first == 0) {
                      fail(QStringLiteral("the flush did not send the queued response"));
                      return;
                  }
                  printStored();
              },
              QStringLiteral("the queue was not flushed after coming back online"));
}

void TovuDemoAutoplay::printStored()
{
    m_backend.fetchStoredResponses([self = QPointer(this)](std::optional<QByteArray> body) {
        if (!self || self->m_done)
            return;
        const auto responses = body ? TovuDemoStoredResponses::parse(*body) : std::nullopt;
        const TovuDemoStoredResponses::Entry *entry
            = responses ? responses->newestFor(self->m_sample.surveyId) : nullptr;
        if (!entry) {
            self->fail(QStringLiteral("the backend has no response to the survey"));
            return;
        }
        self->m_stored = entry->prettyJson;
        self->say(QStringLiteral("the backend stored this response (GET /dev/responses):"));
        self->m_print(entry->prettyJson);
        // The window shows it too; its picture is the last one.
        connect(
            &self->m_stage.activity(), &TovuDemoActivity::storedResponsesRefreshed, self,
            [self] {
                if (self && !self->m_done)
                    self->succeed();
            },
            Qt::SingleShotConnection);
        self->m_stage.showStoredResponses();
        self->m_stage.activity().refreshStoredResponses();
    });
}

void TovuDemoAutoplay::succeed()
{
    if (!m_settings.screenshotsDir.isEmpty()) {
        const QString path = QDir(m_settings.screenshotsDir).filePath(QStringLiteral("demo-window.png"));
        if (!TovuDemoPng::save(m_stage.picture(), path, m_settings.paletteScreenshots)) {
            fail(QStringLiteral("cannot write %1").arg(path));
            return;
        }
        m_screenshots << path;
        say(QStringLiteral("%1 screenshots in %2/ (one per page, and demo-window.png)")
                .arg(m_screenshots.size())
                .arg(m_settings.screenshotsDir));
    }
    m_done = true;
    m_deadline.stop();
    say(QStringLiteral("done in %1 s").arg(double(m_clock.elapsed()) / 1000.0, 0, 'f', 1));
    Q_EMIT finished(0);
}

void TovuDemoAutoplay::fail(const QString &why)
{
    if (m_done)
        return;
    m_done = true;
    m_deadline.stop();
    m_player->stop();
    // The library's last error line says what went wrong underneath.
    QString line = m_settings.program + QStringLiteral(": ") + why;
    if (const QString error = m_stage.activity().lastLibraryError(); !error.isEmpty())
        line += QStringLiteral(" (last library error: %1)").arg(error);
    m_printError(line);
    Q_EMIT finished(1);
}
