#pragma once

#include <tovukit_io/core/TovuManagerSupport.h>
#include <tovukit_io/core/TovuNativeSurveyManager.h>
#include <tovukit_io/core/TovuOfflineQueue.h>
#include <tovukit_io/core/TovuSurveyPresenter.h>
#include <tovukit_io/model/TovuError.h>
#include <tovukit_io/network/CollectorInfo.h>
#include <tovukit_io/platform/TovuPathStatus.h>

#include <tovukit_io/network/TovuNetworkService.h>

#include <QPointer>

#include <memory>

// The manager's state and steps. Everything runs on the GUI thread; closures
// that outlive a call hold the manager and the host through QPointer.
class TovuNativeSurveyManagerPrivate
{
public:
    explicit TovuNativeSurveyManagerPrivate(TovuNativeSurveyManager *manager,
                                            TovuNativeSurveyManager::Dependencies deps);
    ~TovuNativeSurveyManagerPrivate();

    void startWatchingConnectivity();

    // Configuration and fetching.
    void configureAccount(std::string apiKey, std::string zone, TovuEnvironment environment);
    void verifyKey();
    void prefetch();
    void keepCollector(const CollectorInfo &collector);
    void fetchThenPresent(const std::string &surveyId, QPointer<QObject> host);
    void surveyArrived(TovuResult<TovuSurvey> result, QPointer<QObject> host);
    void refuse(TovuNativeSurveyManager::PresentationRefusal reason);
    bool canCover(QObject *host);

    // The session.
    void resetSession();
    void prepareFirstPage();
    void showQuestion(int index);
    void next();
    TovuPageRequest pageRequest(int index);
    bool isLastQuestion() const;
    void endSession(const std::string &status);
    void presenterDismissed();

    // Sending and the queue.
    static void send(TovuNetworkService &service, const TovuQueuedResponse &response,
                     std::function<void(bool)> completion);
    void enqueue(const TovuQueuedResponse &response);
    // One flush: its sends, the failed ones in the order they completed, and
    // who wants to hear the end. It outlives the manager if need be.
    struct FlushState {
        std::vector<TovuQueuedResponse> responses;
        std::vector<TovuQueuedResponse> failed;
        std::size_t started = 0;
        std::size_t completed = 0;
        std::function<void(bool)> completion;
        QPointer<TovuNativeSurveyManager> manager;
        QPointer<TovuNetworkService> service;
    };
    void flush(std::function<void(bool)> completion);
    void flush(std::vector<TovuQueuedResponse> responses, std::function<void(bool)> completion);
    static void start(TovuNetworkService *service, TovuNativeSurveyManager *manager,
                      std::vector<TovuQueuedResponse> responses, std::function<void(bool)> completion);
    static void startSends(const std::shared_ptr<FlushState> &state);
    static void finishFlush(const std::shared_ptr<FlushState> &state);
    static void endFlush(const std::shared_ptr<FlushState> &state, std::optional<QByteArray> failedBlob);
    void pathUpdated(TovuPathStatus status);
    TovuOfflineQueue &queue();

    TovuNativeSurveyManager *q;
    TovuNetworkService &service;
    TovuKeyValueStore *store;
    TovuClock &clock;
    TovuUrlOpener *urlOpener;
    std::unique_ptr<TovuSurveyPresenter> ownPresenter;
    TovuSurveyPresenter &presenter;
    std::unique_ptr<TovuPathMonitor> ownPathMonitor;
    TovuPathMonitor *monitor;
    std::unique_ptr<TovuOfflineQueue> offlineQueue;

    std::optional<TovuSurvey> survey;
    std::optional<std::string> configuredSurveyId;
    std::optional<std::string> configuredCollectorId;
    std::string resolvedCollectorUUID;
    std::string resolvedCollectorMongoId;
    int currentQuestionIndex = 0;
    QPointer<QTimer> triggerTimer;
    std::vector<TovuQueuedResponse> responseQueue;
    std::string surveyStartTime;
    std::vector<TovuAnswer> currentAnswers;
    std::optional<TovuUserData> userData;
    std::int64_t surveyStartEpoch = 0;
    std::int64_t questionStartEpoch = 0;
    std::map<std::string, double> timePerQues;
    int backTrackCount = 0;
    bool wasOffline = false;
    // Answers given in the session on screen; the answers themselves are gone once it is sent.
    int answeredCount = 0;
};
