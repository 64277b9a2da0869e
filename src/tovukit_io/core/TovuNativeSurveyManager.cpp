#include <tovukit_io/core/TovuNativeSurveyManagerPrivate.h>

#include <tovukit_io/core/TovuFrontEnds.h>
#include <tovukit_io/core/TovuResponseAssembly.h>
#include <tovukit_io/model/TovuLog.h>
#include <tovukit_io/model/TovuRatingVariant.h>
#include <tovukit_io/network/TovuNetworkService.h>
#include <tovukit_io/platform/TovuClock.h>
#include <tovukit_io/platform/TovuPathMonitor.h>
#include <tovukit_io/platform/TovuUserDefaults.h>
#include <tovukit_io/viewmodel/TovuThemeEngine.h>

#include <QCoreApplication>
#include <QTimer>
#include <QUuid>

#include <algorithm>
#include <cmath>

namespace {

using TovuManagerSupport::later;

constexpr std::string_view thankYouAutoId = "thank_you_auto";

std::string freshResponseId()
{
    return QUuid::createUuid().toString(QUuid::WithoutBraces).toUpper().toStdString();
}

// The progress shown on question `index`: its place among the survey's question pages
// and their number. The path is the survey's order (a follow-up belongs to its question's
// page), so the count holds from the first page to the last; the thank-you page is none.
void setProgress(TovuPageRequest &request, const std::vector<TovuQuestion> &questions, int index)
{
    const auto isQuestion = [](const TovuQuestion &q) {
        return q.type != TovuQuestionType::thankYou;
    };
    if (!isQuestion(request.question))
        return;
    request.questionNumber
        = static_cast<int>(std::count_if(questions.begin(), questions.begin() + index + 1, isQuestion));
    request.questionCount = static_cast<int>(std::ranges::count_if(questions, isQuestion));
}

} // namespace

// -- construction ------------------------------------------------------------

TovuNativeSurveyManagerPrivate::TovuNativeSurveyManagerPrivate(TovuNativeSurveyManager *manager,
                                                               TovuNativeSurveyManager::Dependencies deps)
    : q(manager)
    , service(deps.networkService ? *deps.networkService : TovuNetworkService::shared())
    , store(deps.store)
    , clock(deps.clock ? *deps.clock : *TovuClock::system())
    , urlOpener(deps.urlOpener)
    , ownPresenter(deps.presenter ? nullptr : TovuFrontEnds::createPresenter(deps.urlOpener))
    , presenter(deps.presenter ? *deps.presenter : *ownPresenter)
    , ownPathMonitor(deps.pathMonitor ? nullptr : TovuPathMonitor::createDefault())
    , monitor(deps.pathMonitor ? deps.pathMonitor : ownPathMonitor.get())
{ }

TovuNativeSurveyManagerPrivate::~TovuNativeSurveyManagerPrivate()
{
    presenter.onSkip = nullptr;
    presenter.onDismissed = nullptr;
}

TovuNativeSurveyManager &TovuNativeSurveyManager::shared()
{
    // Never destroyed: it serves the host until the process ends.
    static auto *instance = new TovuNativeSurveyManager();
    return *instance;
}

TovuNativeSurveyManager::TovuNativeSurveyManager(Dependencies deps, QObject *parent)
    : QObject(parent)
    , d(std::make_unique<TovuNativeSurveyManagerPrivate>(this, deps))
{
    d->presenter.onDismissed = [this] {
        d->presenterDismissed();
    };
    d->startWatchingConnectivity();
}

TovuNativeSurveyManager::~TovuNativeSurveyManager() = default;

void TovuNativeSurveyManagerPrivate::startWatchingConnectivity()
{
    QObject::connect(monitor, &TovuPathMonitor::pathUpdated, q, [this](TovuPathStatus status) { pathUpdated(status); });
    monitor->start();
}

TovuOfflineQueue &TovuNativeSurveyManagerPrivate::queue()
{
    // The store is opened on first use, so making the manager costs no disk access.
    if (!offlineQueue)
        offlineQueue = std::make_unique<TovuOfflineQueue>(store ? *store : TovuUserDefaults::standard(),
                                                          std::string(TovuNativeSurveyManager::queueKey));
    return *offlineQueue;
}

// -- configuration -------------------------------------------------------------

void TovuNativeSurveyManagerPrivate::configureAccount(std::string apiKey, std::string zone, TovuEnvironment environment)
{
    if (QString::fromStdString(zone).startsWith(u"uat-", Qt::CaseInsensitive)) {
        zone.erase(0, 4);
        environment = TovuEnvironment::uat;
    }
    service.configure(std::move(apiKey), std::move(zone), environment); // also clears the bearer token
}

void TovuNativeSurveyManager::configure(std::string apiKey, TovuCollectorId collectorId, std::string zone,
                                        TovuEnvironment environment)
{
    d->configureAccount(std::move(apiKey), std::move(zone), environment);
    d->configuredCollectorId = std::move(collectorId.value);
    d->survey.reset();
    d->verifyKey();
}

void TovuNativeSurveyManager::configure(std::string apiKey, TovuSurveyId surveyId, std::string zone,
                                        TovuEnvironment environment)
{
    d->configureAccount(std::move(apiKey), std::move(zone), environment);
    d->configuredSurveyId = std::move(surveyId.value);
    d->survey.reset();
    d->verifyKey();
}

void TovuNativeSurveyManager::configure(TovuSurvey survey)
{
    d->survey = std::move(survey);
    d->prepareFirstPage();
}

void TovuNativeSurveyManager::configureTheme(TovuAppTheme theme)
{
    TovuThemeEngine::shared().configureAppTheme(std::move(theme));
}

void TovuNativeSurveyManager::configureTheme(QColor primaryColor)
{
    TovuThemeEngine::shared().configureAppTheme(primaryColor);
}

std::optional<TovuTheme> TovuNativeSurveyManager::currentTheme() const
{
    return d->survey ? d->survey->theme : std::nullopt;
}

void TovuNativeSurveyManager::setUser(TovuUserData user)
{
    d->userData = std::move(user);
}

void TovuNativeSurveyManager::clearUser()
{
    d->userData.reset();
}

void TovuNativeSurveyManagerPrivate::verifyKey()
{
    service.verifyApiKey([manager = QPointer(q)](TovuResult<std::string> token) {
        if (!token) {
            TovuLog::print(">>> Tovu SDK ❌ API key verification failed: " + token.error().localizedDescription());
            return;
        }
        TovuLog::print(">>> Tovu SDK: API key verified ✅ — using Bearer token");
        if (manager)
            manager->d->prefetch();
    });
}

void TovuNativeSurveyManagerPrivate::keepCollector(const CollectorInfo &collector)
{
    resolvedCollectorUUID = collector.uuid;
    resolvedCollectorMongoId = collector.mongoId;
}

void TovuNativeSurveyManagerPrivate::prefetch()
{
    const auto fetched = [manager = QPointer(q)](TovuResult<TovuSurvey> result) {
        if (!result || !manager)
            return; // a failed pre-fetch is silent
        later(manager, [manager, survey = std::move(*result)]() mutable {
            TovuLog::print(">>> Tovu SDK: Survey pre-fetched ✅ (" + survey.name + ")");
            manager->d->survey = std::move(survey);
            manager->d->prepareFirstPage();
        });
    };
    if (configuredSurveyId) {
        service.fetchSurvey(*configuredSurveyId, fetched);
    } else if (configuredCollectorId) {
        service.fetchCollector(*configuredCollectorId,
                               [this, manager = QPointer(q), fetched](TovuResult<CollectorInfo> collector) {
                                   if (!collector || !manager)
                                       return;
                                   keepCollector(*collector);
                                   service.fetchSurvey(collector->surveyId, fetched);
                               });
    }
}

// -- fetching and presenting -----------------------------------------------------

void TovuNativeSurveyManagerPrivate::refuse(TovuNativeSurveyManager::PresentationRefusal reason)
{
    Q_EMIT q->presentationRefused(reason);
}

// A host no linked front end can cover is refused before anything changes: the
// session on screen, if any, goes on.
bool TovuNativeSurveyManagerPrivate::canCover(QObject *host)
{
    if (host && presenter.canPresent(host))
        return true;
    if (!host) {
        TovuLog::print(">>> Tovu SDK Error: No host to present the survey on.");
    } else {
        TovuLog::print(std::string(">>> Tovu SDK Error: Cannot present the survey over a ")
                       + host->metaObject()->className()
                       + ": link tovukit_io to cover a QWidget, tovukit_quick to cover a QQuickWindow or QQuickItem.");
    }
    refuse(TovuNativeSurveyManager::PresentationRefusal::noHostWindow);
    return false;
}

void TovuNativeSurveyManager::fetchAndPresentSurvey(QObject *host)
{
    const QPointer<QObject> weakHost(host);
    if (d->survey) {
        later(this, [this, weakHost] { presentSurvey(weakHost); });
    } else if (d->configuredSurveyId) {
        d->fetchThenPresent(*d->configuredSurveyId, weakHost);
    } else if (d->configuredCollectorId) {
        d->service.fetchCollector(
            *d->configuredCollectorId, [manager = QPointer(this), weakHost](TovuResult<CollectorInfo> collector) {
                if (!manager)
                    return;
                if (!collector) {
                    TovuLog::print(">>> Tovu SDK Error [Collector]: " + collector.error().localizedDescription());
                    manager->d->refuse(PresentationRefusal::fetchFailed);
                    return;
                }
                manager->d->keepCollector(*collector);
                manager->d->fetchThenPresent(collector->surveyId, weakHost);
            });
    } else {
        TovuLog::print(">>> Tovu SDK Error: Call configure(apiKey:collectorId:zone:) first.");
        d->refuse(PresentationRefusal::notConfigured);
    }
}

void TovuNativeSurveyManagerPrivate::fetchThenPresent(const std::string &surveyId, QPointer<QObject> host)
{
    service.fetchSurvey(surveyId, [manager = QPointer(q), host](TovuResult<TovuSurvey> result) {
        if (!manager)
            return;
        later(manager, [manager, host, result = std::move(result)]() mutable {
            manager->d->surveyArrived(std::move(result), host);
        });
    });
}

void TovuNativeSurveyManagerPrivate::surveyArrived(TovuResult<TovuSurvey> result, QPointer<QObject> host)
{
    if (!host)
        return; // the host went away while fetching: nothing to show on
    if (!result) {
        TovuLog::print(">>> Tovu SDK Error [Step 4 Survey]: " + result.error().localizedDescription());
        refuse(TovuNativeSurveyManager::PresentationRefusal::fetchFailed);
        return;
    }
    TovuLog::print(">>> Tovu SDK: Survey fetched: " + result->name
                   + " | projectId=" + result->projectId.value_or("nil"));
    survey = std::move(*result);
    q->presentSurvey(host);
}

void TovuNativeSurveyManager::fetchAndPresentLowestResponseSurvey(std::vector<std::string> surveyIds, QObject *host)
{
    if (surveyIds.empty()) {
        TovuLog::print(">>> Tovu SDK Error: surveyUUIDs array is empty.");
        d->refuse(PresentationRefusal::notConfigured);
        return;
    }
    d->service.fetchLowestResponseSurveyId(
        std::move(surveyIds), [manager = QPointer(this), weakHost = QPointer(host)](TovuResult<std::string> id) {
            if (!manager || !weakHost)
                return;
            if (!id) {
                TovuLog::print(">>> Tovu SDK Error [Lowest Response]: " + id.error().localizedDescription());
                manager->d->refuse(PresentationRefusal::fetchFailed);
                return;
            }
            manager->d->fetchThenPresent(*id, weakHost);
        });
}

void TovuNativeSurveyManager::startIntercept(double afterDelaySeconds, QObject *host)
{
    if (d->triggerTimer)
        d->triggerTimer->deleteLater(); // stopped with it: only the newest intercept fires
    auto *timer = new QTimer(this);
    timer->setSingleShot(true);
    // A coarse timer may fire 5 % early; "after 3 s" must not mean 2.85 s.
    timer->setTimerType(Qt::PreciseTimer);
    const double ms = std::isfinite(afterDelaySeconds) ? std::clamp(afterDelaySeconds * 1000.0, 0.0, 2.0e9) : 0.0;
    timer->setInterval(static_cast<int>(ms));
    connect(timer, &QTimer::timeout, this, [this, weakHost = QPointer(host)] {
        if (!weakHost)
            return;
        if (d->survey)
            presentSurvey(weakHost);
        else
            fetchAndPresentSurvey(weakHost);
    });
    d->triggerTimer = timer;
    timer->start();
}

void TovuNativeSurveyManager::presentSurvey(QObject *host)
{
    if (!d->survey) {
        TovuLog::print(">>> Tovu SDK Error: No survey configured.");
        d->refuse(PresentationRefusal::noSurvey);
        return;
    }
    if (!d->canCover(host))
        return;
    d->resetSession();
    if (d->survey->theme)
        TovuThemeEngine::shared().setTheme(d->survey->theme);
    if (!d->presenter.present(*d->survey, host)) {
        d->refuse(PresentationRefusal::noHostWindow);
        return;
    }
    Q_EMIT surveyShown(QString::fromStdString(d->survey->id));
    const auto &intro = d->survey->introPage;
    if (intro && intro->enabled) {
        d->presenter.showIntro(*intro, [manager = QPointer(this)] {
            if (manager)
                manager->d->showQuestion(0);
        });
        return;
    }
    d->showQuestion(0);
}

// -- the session -------------------------------------------------------------------

void TovuNativeSurveyManagerPrivate::resetSession()
{
    currentAnswers.clear();
    answeredCount = 0;
    currentQuestionIndex = 0;
    const std::int64_t now = clock.epochMilliseconds();
    surveyStartTime = TovuClock::iso8601(now);
    surveyStartEpoch = now;
    questionStartEpoch = now;
    timePerQues.clear();
    backTrackCount = 0;
}

void TovuNativeSurveyManager::recordAnswer(TovuAnswer answer)
{
    auto &answers = d->currentAnswers;
    const auto same = std::ranges::find(answers, answer.questionId, &TovuAnswer::questionId);
    if (same != answers.end())
        *same = std::move(answer);
    else
        answers.push_back(std::move(answer));
    d->answeredCount = static_cast<int>(answers.size());
}

bool TovuNativeSurveyManagerPrivate::isLastQuestion() const
{
    return survey && currentQuestionIndex == static_cast<int>(survey->questions.size()) - 2;
}

TovuPageRequest TovuNativeSurveyManagerPrivate::pageRequest(int index)
{
    const TovuQuestion &question = survey->questions[static_cast<std::size_t>(index)];
    TovuPageRequest request{question, isLastQuestion(), ratingVariantFrom(question.ratingStyle), 5, {}, {}};
    const auto &appTheme = TovuThemeEngine::shared().appTheme();
    if (appTheme && appTheme->showsProgress)
        setProgress(request, survey->questions, index);
    if (question.type == TovuQuestionType::thankYou)
        return request;
    const QPointer<TovuNativeSurveyManager> manager(q);
    request.onAnswer = [manager](const TovuAnswer &answer) {
        if (!manager)
            return;
        manager->recordAnswer(answer);
        manager->d->next();
    };
    if (question.type == TovuQuestionType::nps) {
        request.onAdditionalAnswer = [manager](const TovuAnswer &answer) {
            if (manager)
                manager->recordAnswer(answer);
        };
    }
    return request;
}

void TovuNativeSurveyManagerPrivate::prepareFirstPage()
{
    if (survey && !survey->questions.empty() && !presenter.isPresenting())
        presenter.prepare(*survey, pageRequest(0));
}

void TovuNativeSurveyManagerPrivate::showQuestion(int index)
{
    const int count = survey ? static_cast<int>(survey->questions.size()) : 0;
    if (!survey || index < 0 || index >= count) {
        presenter.dismiss();
        return;
    }
    const std::int64_t now = clock.epochMilliseconds();
    if (currentQuestionIndex >= 0 && currentQuestionIndex < count) {
        const std::string &leaving = survey->questions[static_cast<std::size_t>(currentQuestionIndex)].id;
        if (leaving != thankYouAutoId)
            timePerQues[leaving] = static_cast<double>(now - questionStartEpoch) / 1000.0;
    }
    currentQuestionIndex = index;
    questionStartEpoch = now;
    presenter.showQuestion(pageRequest(index));
}

void TovuNativeSurveyManagerPrivate::next()
{
    if (!survey)
        return;
    const int nextIndex = currentQuestionIndex + 1;
    if (nextIndex >= static_cast<int>(survey->questions.size())) {
        endSession("complete");
        presenter.dismiss();
        return;
    }
    const bool thankYou = survey->questions[static_cast<std::size_t>(nextIndex)].type == TovuQuestionType::thankYou;
    showQuestion(nextIndex);
    if (thankYou)
        endSession("complete"); // the thank-you page stays on screen
}

void TovuNativeSurveyManagerPrivate::endSession(const std::string &status)
{
    if (!survey || currentAnswers.empty())
        return;
    const TovuSessionRecord session{survey->id,      resolvedCollectorUUID, currentAnswers, userData,
                                    surveyStartTime, surveyStartEpoch,      timePerQues,    backTrackCount};
    const TovuQueuedResponse response = TovuResponseAssembly::assemble(session, status, clock, freshResponseId());
    currentAnswers.clear();
    survey.reset(); // the next presentation fetches again
    verifyKey();
    for (const auto &line : TovuResponseAssembly::dumpLines(response))
        TovuLog::print(line);
    send(service, response, [manager = QPointer(q), response](bool sent) {
        if (!manager)
            return;
        if (sent)
            Q_EMIT manager->responseSent(QString::fromStdString(response.responseId));
        else
            manager->d->enqueue(response);
    });
}

void TovuNativeSurveyManagerPrivate::presenterDismissed()
{
    Q_EMIT q->surveyDismissed(answeredCount);
}
