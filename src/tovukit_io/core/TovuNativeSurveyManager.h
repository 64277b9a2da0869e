#pragma once

#include <tovukit_io/core/TovuSurveyIds.h>
#include <tovukit_io/model/TovuAnswer.h>
#include <tovukit_io/model/TovuQueuedResponse.h>
#include <tovukit_io/model/TovuSurvey.h>
#include <tovukit_io/model/TovuUserData.h>
#include <tovukit_io/network/TovuEnvironment.h>
#include <tovukit_io/viewmodel/TovuAppTheme.h>

#include <QColor>
#include <QLocale>
#include <QObject>
#include <QStringList>
#include <QVariant>

#include <cstdint>
#include <functional>
#include <initializer_list>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

class QTimer;
class QQuickItem;
class TovuClock;
class TovuKeyValueStore;
class TovuNativeSurveyManagerPrivate;
class TovuNetworkService;
class TovuPathMonitor;
class TovuQuickSheet;
class TovuSurveyPresenter;
class TovuToasterView;
class TovuUrlOpener;

/// The one object a host drives native surveys through: configuration, the
/// fetch chain, the delayed intercept, the question-by-question session in a
/// bottom sheet, the response and the offline queue of responses that could
/// not be sent yet.
///
/// \code
/// auto &tovu = TovuNativeSurveyManager::shared();
/// tovu.configure("my-api-key", TovuCollectorId{"c-123"}, "eu", TovuEnvironment::production);
/// tovu.configureTheme(QColor(0x0A84FF));
/// QObject::connect(&tovu, &TovuNativeSurveyManager::responseQueued, [](const QString &, int total) {
///     qInfo() << total << "responses wait for the network";
/// });
/// tovu.startIntercept(3.0, mainWindow);   // shows the survey over mainWindow in 3 s
/// \endcode
///
/// A host is what the sheet covers: a QWidget (its window or any widget) when the
/// application links tovukit_io, a QQuickWindow or any QQuickItem when it links
/// tovukit_quick. In QML the same object is the singleton `TovuNativeSurveyManager`
/// of `import TovuKit`.
///
/// Everything runs on the GUI thread and nothing is reported by exception:
/// progress and failures are console lines (TovuLog), and the signals below
/// tell a host what happened in code. Responses that cannot be sent are
/// kept in a persistent queue and sent again when the network comes back.
class TovuNativeSurveyManager : public QObject
{
    Q_OBJECT
public:
    /// What the manager works with. Each null member means the library's own:
    /// the shared backend client, TovuUserDefaults::standard(), the system's
    /// path monitor, the system clock, the default URL opener and the Widgets
    /// front ends linked into the application (TovuFrontEnds). Given objects stay owned
    /// by the caller and must outlive the manager.
    struct Dependencies {
        TovuNetworkService *networkService;
        TovuKeyValueStore *store;
        TovuPathMonitor *pathMonitor;
        TovuClock *clock;
        TovuUrlOpener *urlOpener;
        TovuSurveyPresenter *presenter;
    };

    /// Why a survey was not put on screen.
    enum class PresentationRefusal {
        notConfigured, ///< no survey id or collector id was configured
        noSurvey, ///< presentSurvey() without a survey held
        noHostWindow, ///< the host is null, gone, or nothing a linked front end can cover
        fetchFailed, ///< the collector, the survey or the lowest-response choice could not be fetched
    };
    Q_ENUM(PresentationRefusal)

    static constexpr std::string_view queueKey = "com.tovu.offline_responses";

    /// The process-wide manager, made on first use (after the application
    /// object); it lives until the process ends.
    static TovuNativeSurveyManager &shared();
    /// A manager of its own: hosts use shared(); tests give their own parts.
    explicit TovuNativeSurveyManager(Dependencies deps = {}, QObject *parent = nullptr);
    ~TovuNativeSurveyManager() override;

    /// Verifies `apiKey` and pre-fetches the collector's survey. A zone
    /// starting with "uat-" (in any case) selects the UAT environment.
    void configure(std::string apiKey, TovuCollectorId collectorId, std::string zone,
                   TovuEnvironment environment = TovuEnvironment::production);
    /// The same for one survey; a configured survey id wins over a collector id.
    void configure(std::string apiKey, TovuSurveyId surveyId, std::string zone,
                   TovuEnvironment environment = TovuEnvironment::production);
    /// Holds `survey` to present, with no backend call.
    void configure(TovuSurvey survey);
    void configureTheme(TovuAppTheme theme);
    void configureTheme(QColor primaryColor);
    /// The held survey's own theme, if any.
    std::optional<TovuTheme> currentTheme() const;

    /// The language of the library's own texts (button titles, messages, screen-reader
    /// names; see TovuTranslations): the host's locale unless forced here. Pages made
    /// afterwards use it; an unshipped language shows English.
    void setLanguage(const QLocale &language);
    /// The same by name ("de", "pt_BR"), for QML; an empty name follows the host's locale again.
    Q_INVOKABLE void setLanguage(const QString &language);
    /// Shows `replacement` wherever the library would show its English text `english`
    /// ("Skip", "Next →", "Score %1"); an empty `replacement` restores it.
    Q_INVOKABLE void setText(const QString &english, const QString &replacement);

    void setUser(TovuUserData user);
    Q_INVOKABLE void clearUser();

    /// Shows the survey over `host` after `afterDelaySeconds`; a second call replaces the first.
    Q_INVOKABLE void startIntercept(double afterDelaySeconds, QObject *host);
    /// Shows the held survey, or fetches the configured one first.
    Q_INVOKABLE void fetchAndPresentSurvey(QObject *host);
    /// Shows whichever of `surveyIds` has the fewest responses so far.
    void fetchAndPresentLowestResponseSurvey(std::vector<std::string> surveyIds, QObject *host);
    /// Starts a new session of the held survey in a sheet over `host`.
    Q_INVOKABLE void presentSurvey(QObject *host);

    /// Keeps `answer` for the running session, replacing one to the same question.
    void recordAnswer(TovuAnswer answer);

    /// Sends every queued response; `completion` gets true when none failed.
    void flushQueue(std::function<void(bool)> completion);
    Q_INVOKABLE void clearQueue();
    std::vector<TovuQueuedResponse> getQueuedResponses() const;

    // The same operations with QML's types, for the `TovuNativeSurveyManager`
    // singleton of `import TovuKit`:
    //
    //   TovuNativeSurveyManager.configure({ apiKey: "key", collectorId: "c-123", zone: "eu" })
    //   TovuNativeSurveyManager.configureTheme({ primaryColor: "#1E8E3E", cornerRadius: 24, showsProgress: true })
    //   TovuNativeSurveyManager.startIntercept(3, window)
    //   TovuNativeSurveyManager.flushQueue(function (allSent) { … })

    /// `{apiKey, collectorId | surveyId, zone, environment}`: environment "production"
    /// (the default) or "uat"; a survey id wins over a collector id.
    Q_INVOKABLE void configure(const QVariantMap &options);
    /// Any of `{primaryColor, backgroundColor, textColor, fontFamily, cornerRadius, showsProgress}`.
    Q_INVOKABLE void configureTheme(const QVariantMap &theme);
    /// `{name, email, phone, uniqueId, country, city, region}`; other entries are extra data.
    Q_INVOKABLE void setUser(const QVariantMap &user);
    Q_INVOKABLE void fetchAndPresentLowestResponseSurvey(const QStringList &surveyIds, QObject *host);
    /// Picks this overload for a braced list of ids in C++.
    void fetchAndPresentLowestResponseSurvey(std::initializer_list<std::string> surveyIds, QObject *host);
    /// Sends every queued response; then calls `callback(allSent)`, a script function, if given.
    Q_INVOKABLE void flushQueue(const QVariant &callback);
    /// How many responses wait in the offline queue.
    Q_INVOKABLE int queuedResponseCount() const;

    // The manager's state, read-only.
    const std::optional<TovuSurvey> &survey() const;
    const std::optional<std::string> &configuredSurveyId() const;
    const std::optional<std::string> &configuredCollectorId() const;
    const std::string &resolvedCollectorUUID() const;
    const std::string &resolvedCollectorMongoId() const;
    int currentQuestionIndex() const;
    /// The sheet of the running session, whichever front end shows it, or null.
    QObject *currentSheet() const;
    /// The sheet of the running session when the Qt Widgets front end shows it, else
    /// null. (A template so that only code using it needs the widget header.)
    template<class Sheet = TovuToasterView>
    Sheet *toasterView() const
    {
        return qobject_cast<Sheet *>(currentSheet());
    }
    /// The sheet of the running session when the Qt Quick front end shows it, else null.
    template<class Sheet = TovuQuickSheet>
    Sheet *quickSheet() const
    {
        return qobject_cast<Sheet *>(currentSheet());
    }
    QTimer *triggerTimer() const;
    /// Kept for completeness: the queue lives in the store, not here.
    const std::vector<TovuQueuedResponse> &responseQueue() const;
    const std::string &surveyStartTime() const;
    const std::vector<TovuAnswer> &currentAnswers() const;
    const std::optional<TovuUserData> &userData() const;
    std::int64_t surveyStartEpoch() const;
    std::int64_t questionStartEpoch() const;
    const std::map<std::string, double> &timePerQues() const;
    int backTrackCount() const;
    TovuPathMonitor *pathMonitor() const;
    bool wasOffline() const;
    TovuSurveyPresenter *presenter() const;

Q_SIGNALS:
    /// A sheet with `surveyId` went up.
    void surveyShown(const QString &surveyId);
    /// The sheet went away, after `answeredCount` questions were answered.
    void surveyDismissed(int answeredCount);
    void presentationRefused(TovuNativeSurveyManager::PresentationRefusal reason);
    void responseSent(const QString &responseId);
    /// A response could not be sent and waits in the queue, now `queuedCount` long.
    void responseQueued(const QString &responseId, int queuedCount);
    /// A flush ended: `sent` went out, `failed` stay queued.
    void queueFlushed(int sent, int failed);

private:
    friend class TovuNativeSurveyManagerPrivate;
    std::unique_ptr<TovuNativeSurveyManagerPrivate> d;
};
