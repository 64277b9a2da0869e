#pragma once

#include "TovuDemoGivenAnswer.h"
#include "TovuDemoPagePlayer.h"

#include <QElapsedTimer>
#include <QObject>
#include <QString>
#include <QTimer>

#include <functional>
#include <memory>
#include <vector>

class TovuDemoBackend;
class TovuDemoSession;
class TovuDemoStage;
struct TovuDemoSample;

/// The demo playing itself, in either toolkit (TovuDemoStage): configures one
/// sample by its collector id, waits for the pre-fetch, shows the survey over
/// the host screen and answers every page (TovuDemoPagePlayer), then waits for the response to reach the
/// backend and prints what the backend stored. With offlineFirst it goes
/// offline before the survey, so the response is queued, then comes back
/// online and waits for the flush. One line per step and per page goes to
/// `print`; a failure ends the run with one line on `printError`.
class TovuDemoAutoplay : public QObject
{
    Q_OBJECT
public:
    struct Settings {
        bool offlineFirst = false;
        /// Where the page screenshots and demo-window.png go; empty: none.
        QString screenshotsDir;
        /// Screenshots with a 256-colour palette, about a third of the size.
        bool paletteScreenshots = false;
        TovuDemoPagePlayer::Pace pace = TovuDemoPagePlayer::briskPace;
        /// The whole run gives up after this long.
        int timeoutMs = 60000;
        /// What the lines printed begin with.
        QString program = QStringLiteral("tovu-demo");
    };

    TovuDemoAutoplay(TovuDemoStage &stage, TovuDemoSession &session, TovuDemoBackend &backend,
                     const TovuDemoSample &sample, Settings settings, std::function<void(const QString &)> print,
                     std::function<void(const QString &)> printError, QObject *parent = nullptr);
    ~TovuDemoAutoplay() override;

    void start();

    /// What was answered, page by page (an NPS follow-up as its own entry).
    const std::vector<TovuDemoGivenAnswer> &given() const { return m_player->given(); }
    /// The stored response (the backend's entry: id, surveyId, receivedAt, payload) as JSON.
    const QString &storedResponse() const { return m_stored; }
    const QStringList &screenshots() const { return m_screenshots; }
    /// How many responses waited in the queue at most (offlineFirst: 1).
    int mostQueued() const { return m_mostQueued; }
    /// What the flush reported (offlineFirst): sent and failed.
    std::pair<int, int> flushed() const { return m_flushed; }

Q_SIGNALS:
    /// 0 when the response reached the backend and was printed; 1 otherwise.
    void finished(int exitCode);

private:
    void waitForPrefetch();
    void present();
    void pageDone(int number, int pages, const QString &kind, const QString &title, const QString &answer,
                  const QString &screenshot);
    void surveyPlayed();
    void responseSettled();
    void comeBackOnline();
    void printStored();
    /// Prints "program: text".
    void say(const QString &text);
    void fail(const QString &why);
    void succeed();
    void waitUntil(std::function<bool()> condition, int timeoutMs, std::function<void()> then, QString whatFailed);

    TovuDemoStage &m_stage;
    TovuDemoSession &m_session;
    TovuDemoBackend &m_backend;
    const TovuDemoSample &m_sample;
    Settings m_settings;
    std::function<void(const QString &)> m_print;
    std::function<void(const QString &)> m_printError;
    std::unique_ptr<TovuDemoPagePlayer> m_player;
    QTimer m_deadline;
    QElapsedTimer m_clock;
    bool m_done = false;
    bool m_played = false;
    bool m_sent = false;
    bool m_queued = false;
    bool m_backOnline = false;
    bool m_flushDone = false;
    int m_pages = 0;
    int m_mostQueued = 0;
    std::pair<int, int> m_flushed{0, 0};
    QString m_stored;
    QStringList m_screenshots;
};
