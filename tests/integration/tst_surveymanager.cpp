// The survey manager against a real local backend, with real sheets and
// views clicked offscreen: configuration, the fetch chain, the flow and its
// timings, what reaches the backend, and the offline queue with its flush.

#include "TovuAnsweredPages.h"
#include "TovuBackendFixture.h"
#include "TovuSurveyClicker.h"

#include <tovukit_io/core/TovuNativeSurveyManager.h>
#include <tovukit_io/core/TovuOfflineQueue.h>
#include <tovukit_io/platform/TovuManualClock.h>
#include <tovukit_io/platform/TovuManualPathMonitor.h>
#include <tovukit_io/platform/TovuMemoryKeyValueStore.h>
#include <tovukit_io/platform/TovuUrlOpener.h>
#include <tovukit_io/ui/TovuThankYouView.h>

#include <QSignalSpy>

#include <algorithm>
#include <memory>
#include <set>

namespace {

using Refusal = TovuNativeSurveyManager::PresentationRefusal;

const std::string satisfactionId = "03ce355f-163d-420a-9980-f630e7af337c";
const std::string onboardingId = "9ae5c581-202c-4dd1-b268-dab86f00c0e7";
const std::string feedbackId = "e09b241d-5a3c-4df7-82e0-9032a0b0f2cc";
const std::string everyTypeId = "7ac257b7-e00d-4e29-bb03-2fd59a7b8d9e";

TovuQuestion choice(std::string id, std::string title)
{
    return TovuQuestion{.id = std::move(id),
                        .type = TovuQuestionType::singleChoice,
                        .title = std::move(title),
                        .options = std::vector<TovuChoice>{{.id = "yes", .text = "Yes"}, {.id = "no", .text = "No"}}};
}

TovuQuestion thankYou()
{
    return TovuQuestion{.id = "thank_you_auto", .type = TovuQuestionType::thankYou, .title = "Thanks!"};
}

/// A survey of `questions` single-choice pages, with the closing thank-you page or without.
TovuSurvey localSurvey(std::string id, int questions, bool withThankYou = true)
{
    TovuSurvey survey{.id = std::move(id), .name = "Local"};
    for (int i = 0; i < questions; ++i)
        survey.questions.push_back(choice("q" + std::to_string(i), "Question " + std::to_string(i)));
    if (withThankYou)
        survey.questions.push_back(thankYou());
    return survey;
}

} // namespace

class SurveyManager : public TovuBackendFixture
{
protected:
    void SetUp() override
    {
        TovuBackendFixture::SetUp();
        host.resize(390, 844);
        host.show();
        manager = makeManager(monitor);
        // The path is reported once at start; a test's own queue comes after it.
        ASSERT_TRUE(QTest::qWaitFor([&] { return monitor.currentStatus().has_value(); }, 2000));
    }

    std::unique_ptr<TovuNativeSurveyManager> makeManager(TovuPathMonitor &pathMonitor, TovuClock *clock = nullptr)
    {
        return std::make_unique<TovuNativeSurveyManager>(
            TovuNativeSurveyManager::Dependencies{&service, &store, &pathMonitor, clock, &opener, nullptr});
    }

    /// The key verified and the configured survey pre-fetched.
    void configure(const auto &id)
    {
        const auto before = std::ranges::count_if(log, [](const auto &l) { return l.find("pre-fetched") != l.npos; });
        manager->configure("tovu-demo-key", id, "eu");
        ASSERT_TRUE(QTest::qWaitFor(
            [&] {
                return std::ranges::count_if(log, [](const auto &l) { return l.find("pre-fetched") != l.npos; })
                    > before;
            },
            10000))
            << "no pre-fetch";
    }

    bool hasLine(std::string_view line) const { return std::ranges::find(log, line) != log.end(); }

    TovuToasterView *sheet() const { return manager->toasterView(); }
    QWidget *page() const { return TovuSurveyClicker::currentPage(sheet()); }

    /// Presents the held survey and waits for its first page.
    void present()
    {
        manager->presentSurvey(&host);
        ASSERT_TRUE(QTest::qWaitFor([&] { return page() != nullptr; }, 3000));
    }

    void answerPage()
    {
        QPointer<QWidget> before = page();
        ASSERT_TRUE(clicker.answer(before));
        ASSERT_TRUE(QTest::qWaitFor([&] { return !before || page() != before.data(); }, 3000));
    }

    Json storedFor(const std::string &surveyId)
    {
        const auto [status, body] = devRequest("GET", "/dev/responses?surveyId=" + surveyId);
        EXPECT_EQ(status, 200);
        return Json::parse(body, nullptr, false);
    }

    QWidget host;
    TovuMemoryKeyValueStore store;
    TovuManualPathMonitor monitor;
    // Thank-you redirects fire 2.5 s after their page, whatever became of it: the opener outlives every test.
    static inline TovuRecordingUrlOpener opener;
    TovuSurveyClicker clicker;
    std::unique_ptr<TovuNativeSurveyManager> manager;
};

TEST_F(SurveyManager, ConfigurationRules)
{
    const struct {
        std::string zone;
        TovuEnvironment given;
        std::string sentZone;
        TovuEnvironment sentEnvironment;
    } zones[] = {
        {"Uat-Eu", TovuEnvironment::production, "Eu", TovuEnvironment::uat},
        {"UAT-EU", TovuEnvironment::production, "EU", TovuEnvironment::uat},
        {"uatEU", TovuEnvironment::production, "uatEU", TovuEnvironment::production},
        {"EU", TovuEnvironment::uat, "EU", TovuEnvironment::uat},
    };
    for (const auto &z : zones) {
        SCOPED_TRACE(z.zone);
        service.setBearerToken("stale");
        manager->configure("k", TovuCollectorId{"c"}, z.zone, z.given);
        EXPECT_EQ(service.zone(), z.sentZone);
        EXPECT_EQ(service.environment(), z.sentEnvironment);
        EXPECT_EQ(service.apiKey(), "k");
        EXPECT_EQ(service.bearerToken(), std::nullopt) << "a new account needs a new verification";
    }
    service.setBaseURLOverride(url); // the uat zone changed nothing about where calls go
    ASSERT_TRUE(
        QTest::qWaitFor([&] { return hasLine(">>> Tovu SDK ❌ API key verification failed: Invalid API key"); }, 5000));

    // A survey id wins over a collector id configured after it; the collector id is still kept.
    configure(TovuSurveyId{onboardingId});
    configure(TovuCollectorId{"collector-customer-satisfaction"});
    EXPECT_EQ(manager->configuredSurveyId(), onboardingId);
    EXPECT_EQ(manager->configuredCollectorId(), "collector-customer-satisfaction");
    ASSERT_TRUE(manager->survey());
    EXPECT_EQ(manager->survey()->id, onboardingId);
    EXPECT_TRUE(hasLine(">>> Tovu SDK: API key verified ✅ — using Bearer token"));
    EXPECT_TRUE(hasLine(">>> Tovu SDK: Survey pre-fetched ✅ (New user onboarding)"));
    EXPECT_EQ(manager->currentTheme(), manager->survey()->theme);

    // configure(with:) holds a survey without any backend call.
    const auto requests = log.size();
    manager->configure(localSurvey("L", 1));
    EXPECT_EQ(manager->survey()->id, "L");
    EXPECT_EQ(manager->configuredSurveyId(), onboardingId);
    QTest::qWait(50);
    EXPECT_EQ(log.size(), requests);
}

TEST_F(SurveyManager, EverySampleSurveyReachesTheBackendAsAnswered)
{
    const struct {
        std::string surveyId;
        std::optional<std::string> collector;
        bool keysAlone = false;
        bool screenReader = false;
    } runs[] = {
        {satisfactionId, "collector-customer-satisfaction"},
        {onboardingId, std::nullopt},
        {feedbackId, "collector-product-feedback"},
        // Every question type, answered with Tab, arrows, Space and typing only.
        {everyTypeId, "collector-every-question-type", true},
        // And through a screen reader's actions alone: press, toggle and text.
        {everyTypeId, "collector-every-question-type", false, true},
    };
    for (const auto &run : runs) {
        SCOPED_TRACE(run.surveyId
                     + (run.keysAlone          ? " with keys alone"
                            : run.screenReader ? " by a screen reader"
                                               : ""));
        clicker.keyboardOnly = run.keysAlone;
        clicker.screenReaderOnly = run.screenReader;
        manager = makeManager(monitor); // a host's first session of each kind
        manager->setUser(TovuUserData{.name = "Ana",
                                      .email = "ana@example.com",
                                      .city = "Berlin",
                                      .eData = std::map<std::string, std::string>{{"plan", "pro"}}});
        QSignalSpy shown(manager.get(), &TovuNativeSurveyManager::surveyShown);
        QSignalSpy sent(manager.get(), &TovuNativeSurveyManager::responseSent);
        if (run.collector)
            configure(TovuCollectorId{*run.collector});
        else
            configure(TovuSurveyId{run.surveyId});
        ASSERT_EQ(manager->survey()->id, run.surveyId);

        clicker.expected.clear();
        manager->startIntercept(0.05, &host);
        ASSERT_TRUE(QTest::qWaitFor([&] { return shown.size() == 1; }, 3000));
        EXPECT_EQ(shown.takeLast().at(0).toString().toStdString(), run.surveyId);
        const int pages = clicker.answerAll([&] { return sheet(); });
        EXPECT_GE(pages, 5);
        ASSERT_TRUE(qobject_cast<TovuThankYouView *>(page())) << "the thank-you page stays";
        ASSERT_TRUE(QTest::qWaitFor([&] { return sent.size() == 1; }, 5000));
        EXPECT_FALSE(manager->survey()) << "the next session fetches again";

        const Json stored = storedFor(run.surveyId);
        ASSERT_EQ(stored.size(), run.screenReader ? 2u : 1u) << "one response a run";
        const Json &payload = stored.back()["payload"];
        EXPECT_EQ(payload["collector_id"], run.collector.value_or(""));
        const Json &item = payload["responses"][0];
        EXPECT_EQ(item["response_status"], "complete");
        EXPECT_EQ(item["mode"], "iOS SDK");
        EXPECT_EQ(item["custom_variables"],
                  (Json{{"city", "Berlin"}, {"email", "ana@example.com"}, {"fName", "Ana"}, {"plan", "pro"}}));
        EXPECT_EQ(item["deviceInfo"], (Json{{"type", "mobile"}, {"os", "ios"}, {"browser", "safari"}}));
        EXPECT_EQ(item["geoLocation"]["coordinates"], Json::parse("[null, null]"));
        EXPECT_EQ(item["geoLocation"]["city"], "Berlin");

        TovuAnsweredPages::check(item, clicker.expected);
        // The session ended, so the key is verified again and the next survey pre-fetched.
        ASSERT_TRUE(QTest::qWaitFor([&] { return manager->survey().has_value(); }, 5000));
    }
    EXPECT_TRUE(manager->getQueuedResponses().empty());
}

TEST_F(SurveyManager, FlowOrderTimingsAndEnding)
{
    TovuManualClock clock;
    manager = makeManager(monitor, &clock);
    // A token for the sends, and no configured id whose pre-fetch could replace the local surveys.
    service.setBearerToken("tovu-demo-token");
    QSignalSpy dismissed(manager.get(), &TovuNativeSurveyManager::surveyDismissed);

    manager->configure(localSurvey("FLOW", 3));
    present();
    EXPECT_EQ(manager->surveyStartTime(), TovuClock::iso8601(clock.epochMilliseconds()));
    for (int index = 0; index < 3; ++index) {
        auto *view = qobject_cast<TovuSingleChoiceQuestionView *>(page());
        ASSERT_TRUE(view);
        EXPECT_EQ(manager->currentQuestionIndex(), index);
        EXPECT_EQ(view->isLastQuestion(), index == 2) << "the last page before the thank-you page";
        clock.advance(1000 * (index + 1) + 250);
        answerPage();
    }
    ASSERT_TRUE(qobject_cast<TovuThankYouView *>(page()));
    EXPECT_EQ(manager->timePerQues(), (std::map<std::string, double>{{"q0", 1.25}, {"q1", 2.25}, {"q2", 3.25}}));
    EXPECT_TRUE(manager->currentAnswers().empty()) << "the thank-you page ends the session at once";
    ASSERT_TRUE(QTest::qWaitFor([&] { return storedFor("FLOW").size() == 1; }, 5000));
    EXPECT_EQ(storedFor("FLOW")[0]["payload"]["responses"][0]["time_spent"], 6);

    // Answering again replaces the answer in place.
    manager->recordAnswer(TovuAnswer{"a", {{.rowId = "1"}}});
    manager->recordAnswer(TovuAnswer{"b", {{.rowId = "1"}}});
    manager->recordAnswer(TovuAnswer{"a", {{.rowId = "2"}}});
    EXPECT_EQ(manager->currentAnswers(), (std::vector<TovuAnswer>{{"a", {{.rowId = "2"}}}, {"b", {{.rowId = "1"}}}}));

    // Without a thank-you page the last answer ends the session and closes the sheet.
    manager->configure(localSurvey("NOTHANKS", 1, false));
    present();
    EXPECT_TRUE(manager->currentAnswers().empty()) << "a new session starts empty";
    answerPage();
    ASSERT_TRUE(QTest::qWaitFor([&] { return sheet() == nullptr; }, 3000));
    ASSERT_EQ(dismissed.size(), 1) << "a sheet replaced by the next one closes quietly";
    EXPECT_EQ(dismissed.last().at(0).toInt(), 1);
    ASSERT_TRUE(QTest::qWaitFor([&] { return storedFor("NOTHANKS").size() == 1; }, 5000));

    // Skip sends nothing and keeps the answers until the next presentation.
    manager->configure(localSurvey("SKIPPED", 2));
    present();
    answerPage();
    QTest::mouseClick(sheet()->skipButton(), Qt::LeftButton);
    ASSERT_TRUE(QTest::qWaitFor([&] { return sheet() == nullptr; }, 3000));
    EXPECT_EQ(manager->currentAnswers().size(), 1u);
    EXPECT_EQ(dismissed.last().at(0).toInt(), 1);
    QTest::qWait(100);
    EXPECT_TRUE(storedFor("SKIPPED").empty());

    // An enabled intro page comes first; the questions begin when the respondent starts.
    auto intro = localSurvey("INTRO", 1);
    intro.introPage = TovuSurveyPage{.enabled = true, .content = "Hello", .buttonText = "Go"};
    manager->configure(intro);
    present();
    ASSERT_TRUE(qobject_cast<TovuIntroView *>(page()));
    answerPage();
    EXPECT_TRUE(qobject_cast<TovuSingleChoiceQuestionView *>(page()));
    intro.introPage->enabled = false;
    manager->configure(intro);
    present();
    EXPECT_TRUE(qobject_cast<TovuSingleChoiceQuestionView *>(page()));
}

TEST_F(SurveyManager, FailuresSayWhyAndShowNothing)
{
    QSignalSpy refused(manager.get(), &TovuNativeSurveyManager::presentationRefused);
    const auto lastRefusal = [&] {
        return refused.isEmpty() ? -1 : refused.last().at(0).toInt();
    };

    manager->fetchAndPresentSurvey(&host);
    EXPECT_EQ(log.back(), ">>> Tovu SDK Error: Call configure(apiKey:collectorId:zone:) first.");
    EXPECT_EQ(lastRefusal(), int(Refusal::notConfigured));
    manager->presentSurvey(&host);
    EXPECT_EQ(log.back(), ">>> Tovu SDK Error: No survey configured.");
    EXPECT_EQ(lastRefusal(), int(Refusal::noSurvey));
    manager->fetchAndPresentLowestResponseSurvey({}, &host);
    EXPECT_EQ(log.back(), ">>> Tovu SDK Error: surveyUUIDs array is empty.");

    const struct {
        std::function<void()> call;
        std::string line;
    } fetches[] = {
        {[&] { manager->configure("tovu-demo-key", TovuCollectorId{"nope"}, "eu"); },
         ">>> Tovu SDK Error [Collector]: Collector not found"},
        {[&] { manager->configure("tovu-demo-key", TovuSurveyId{"nope"}, "eu"); },
         ">>> Tovu SDK Error [Step 4 Survey]: Survey not found"},
        {[&] { answerNext("/v3/survey-management/surveys/responses", 500, R"({"message":"busy"})"); },
         ">>> Tovu SDK Error [Lowest Response]: busy"},
    };
    for (const auto &[call, line] : fetches) {
        SCOPED_TRACE(line);
        call();
        QTest::qWait(300); // verification and the silent pre-fetch
        refused.clear();
        if (line.find("Lowest") != line.npos)
            manager->fetchAndPresentLowestResponseSurvey({"a", "b"}, &host);
        else
            manager->fetchAndPresentSurvey(&host);
        ASSERT_TRUE(QTest::qWaitFor([&] { return hasLine(line); }, 5000));
        EXPECT_EQ(lastRefusal(), int(Refusal::fetchFailed));
        EXPECT_EQ(sheet(), nullptr);
    }

    // A host that goes away while the survey is on its way gets nothing, and no line.
    manager->configure("tovu-demo-key", TovuSurveyId{satisfactionId}, "eu");
    QTest::qWait(300);
    manager->configure("tovu-demo-key", TovuSurveyId{satisfactionId}, "eu"); // no survey held, a fresh token soon
    ASSERT_TRUE(QTest::qWaitFor([&] { return service.bearerToken().has_value(); }, 5000));
    auto doomed = std::make_unique<QWidget>();
    manager->fetchAndPresentSurvey(doomed.get());
    doomed.reset();
    const auto lines = log.size();
    QTest::qWait(500);
    EXPECT_EQ(sheet(), nullptr);
    EXPECT_TRUE(std::none_of(log.begin() + static_cast<long>(lines), log.end(),
                             [](const auto &l) { return l.starts_with(">>> Tovu SDK Error"); }));

    // A second intercept replaces the first: one sheet, after the second delay.
    QSignalSpy shown(manager.get(), &TovuNativeSurveyManager::surveyShown);
    manager->configure(localSurvey("L", 1));
    manager->startIntercept(0.1, &host);
    manager->startIntercept(0.4, &host);
    QTest::qWait(250);
    EXPECT_EQ(shown.size(), 0);
    ASSERT_TRUE(QTest::qWaitFor([&] { return shown.size() == 1; }, 2000));
    QTest::qWait(200);
    EXPECT_EQ(shown.size(), 1);
}

TEST_F(SurveyManager, OfflineResponsesWaitAndGoOutOnce)
{
    service.setBearerToken("tovu-demo-token");
    QSignalSpy queued(manager.get(), &TovuNativeSurveyManager::responseQueued);

    // The backend is down: the finished response waits in the queue.
    addFault(Json{{"pathPrefix", "/v3/survey-participation"},
                  {"status", 503},
                  {"count", 2},
                  {"body", R"({"message":"Service unavailable"})"}});
    for (const char *id : {"OFF-1", "OFF-2"}) {
        manager->configure(localSurvey(id, 1, false));
        present();
        answerPage();
        ASSERT_TRUE(
            QTest::qWaitFor([&] { return !queued.isEmpty() && queued.last().at(1).toInt() == (id[4] - '0'); }, 5000));
    }
    EXPECT_TRUE(hasLine(">>> Tovu SDK: Submit failed, queuing for retry -> Service unavailable"));
    EXPECT_TRUE(hasLine(">>> Tovu SDK: Response saved to offline queue (total: 2)"));
    EXPECT_EQ(manager->getQueuedResponses().size(), 2u);

    // The next launch finds the queue and sends it as soon as the network is there.
    manager.reset();
    TovuManualPathMonitor relaunchMonitor(TovuPathStatus::satisfied);
    manager = makeManager(relaunchMonitor);
    QSignalSpy flushed(manager.get(), &TovuNativeSurveyManager::queueFlushed);
    ASSERT_TRUE(QTest::qWaitFor([&] { return flushed.size() == 1; }, 5000));
    EXPECT_EQ(flushed[0], (QVariantList{2, 0}));
    EXPECT_TRUE(hasLine(">>> Tovu SDK: Flushing 2 offline response(s)..."));
    EXPECT_TRUE(hasLine(">>> Tovu SDK: Flush done — 0 failed, 2 sent"));
    EXPECT_EQ(storedFor("OFF-1").size(), 1u);
    EXPECT_EQ(storedFor("OFF-2").size(), 1u);
    EXPECT_TRUE(manager->getQueuedResponses().empty());

    // Going offline and back flushes without looking first; a satisfied path
    // with an empty queue while online does not.
    flushed.clear();
    relaunchMonitor.setStatus(TovuPathStatus::satisfied);
    QTest::qWait(100);
    EXPECT_TRUE(flushed.isEmpty());
    relaunchMonitor.setStatus(TovuPathStatus::unsatisfied);
    ASSERT_TRUE(QTest::qWaitFor([&] { return manager->wasOffline(); }, 2000));
    const auto lines = log.size();
    relaunchMonitor.setStatus(TovuPathStatus::satisfied);
    ASSERT_TRUE(QTest::qWaitFor([&] { return !manager->wasOffline(); }, 2000));
    EXPECT_EQ(log.size(), lines) << "an empty flush prints nothing";
}

TEST_F(SurveyManager, AFlushKeepsOnlyTheFailures)
{
    service.setBearerToken("tovu-demo-token");
    TovuOfflineQueue queue(store);
    std::vector<TovuQueuedResponse> responses;
    for (const char *id : {"S-A", "S-B", "S-C"}) {
        TovuQueuedResponse r{.responseId = std::string("R-") + id,
                             .surveyId = id,
                             .collectorUUID = "",
                             .mode = "iOS SDK",
                             .status = "complete",
                             .startTime = "2026-11-15T18:14:20Z",
                             .endTime = "2026-11-15T18:15:20Z",
                             .answers = {TovuAnswer{"q", {{.rowId = "o"}}}}};
        responses.push_back(r);
    }
    queue.store(responses);
    answerNext("/v3/survey-participation/S-B/", 500, R"({"message":"boom"})");

    std::optional<bool> result;
    manager->flushQueue([&](bool ok) { result = ok; });
    ASSERT_TRUE(QTest::qWaitFor([&] { return result.has_value(); }, 5000));
    EXPECT_FALSE(*result);
    EXPECT_EQ(logFrom(">>> Tovu SDK: Flushing").front(), ">>> Tovu SDK: Flushing 3 offline response(s)...");
    EXPECT_TRUE(hasLine(">>> Tovu SDK: Submit failed, queuing for retry -> boom"));
    EXPECT_TRUE(hasLine(">>> Tovu SDK: Flush done — 1 failed, 2 sent"));
    EXPECT_EQ(manager->getQueuedResponses(), std::vector<TovuQueuedResponse>{responses[1]});
    EXPECT_EQ(storedFor("S-A").size() + storedFor("S-C").size(), 2u);

    // An empty queue completes at once, inside the call, and prints nothing.
    manager->clearQueue();
    EXPECT_EQ(store.data(TovuOfflineQueue::defaultKey), QByteArray("[]"));
    const auto lines = log.size();
    bool called = false;
    manager->flushQueue([&](bool ok) { called = ok; });
    EXPECT_TRUE(called);
    EXPECT_EQ(log.size(), lines);
}
