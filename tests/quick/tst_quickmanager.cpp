// The survey manager in a QML app (a QGuiApplication, no widgets anywhere)
// against a real local backend: the QML API configures and presents, pages are
// answered with real clicks and key presses found through accessibility, and
// the stored response is held against the answers.

#include "TovuAnsweredPages.h"
#include "TovuBackendFixture.h"
#include "TovuQuickHost.h"
#include "TovuQuickSurveyClicker.h"

#include <tovukit_io/core/TovuNativeSurveyManager.h>
#include <tovukit_io/core/TovuSurveyPresenter.h>
#include <tovukit_io/platform/TovuManualPathMonitor.h>
#include <tovukit_io/platform/TovuMemoryKeyValueStore.h>
#include <tovukit_io/platform/TovuUrlOpener.h>
#include <tovukit_io/quick/TovuQuickSheet.h>

#include <QQmlApplicationEngine>
#include <QQmlComponent>
#include <QSignalSpy>
#include <QWindow>

#include <memory>

namespace {

using Refusal = TovuNativeSurveyManager::PresentationRefusal;

const std::string onboardingId = "9ae5c581-202c-4dd1-b268-dab86f00c0e7";
const std::string everyTypeId = "7ac257b7-e00d-4e29-bb03-2fd59a7b8d9e";

// What the host adds: it drives the manager through its QML singleton.
constexpr QByteArrayView hostMembers = R"QML(
    function configure(key, surveyId) {
        TovuNativeSurveyManager.configure({ apiKey: key, surveyId: surveyId, zone: "eu" })
        TovuNativeSurveyManager.setUser({ name: "Ana", email: "ana@example.com", city: "Berlin", plan: "pro" })
        TovuNativeSurveyManager.configureTheme({ primaryColor: "#1E8E3E" })
    }
    function show() { TovuNativeSurveyManager.fetchAndPresentSurvey(window) }
    property var flushed
    function flush() { TovuNativeSurveyManager.flushQueue(function (allSent) { window.flushed = allSent }) }
)QML";

} // namespace

class QuickManager : public TovuBackendFixture
{
protected:
    void SetUp() override
    {
        TovuBackendFixture::SetUp();
        window = TovuQuickHost::load(engine, hostMembers);
        ASSERT_TRUE(window);
    }

    std::unique_ptr<TovuNativeSurveyManager> makeManager()
    {
        return std::make_unique<TovuNativeSurveyManager>(
            TovuNativeSurveyManager::Dependencies{&service, &store, &monitor, nullptr, &opener, nullptr});
    }

    bool hasLineStartingWith(std::string_view start) const
    {
        return std::ranges::any_of(log, [start](const std::string &line) { return line.starts_with(start); });
    }

    Json storedFor(const std::string &surveyId)
    {
        const auto [status, body] = devRequest("GET", "/dev/responses?surveyId=" + surveyId);
        EXPECT_EQ(status, 200);
        return Json::parse(body, nullptr, false);
    }

    QQmlApplicationEngine engine;
    QQuickWindow *window = nullptr;
    TovuMemoryKeyValueStore store;
    TovuManualPathMonitor monitor;
    static inline TovuRecordingUrlOpener opener;
    TovuQuickSurveyClicker clicker;
};

TEST_F(QuickManager, AQmlHostAnswersEveryQuestionTypeAndTheBackendStoresIt)
{
    // The singleton is the manager C++ hosts use, with the library's own parts.
    TovuNativeSurveyManager &manager = TovuNativeSurveyManager::shared();
    TovuNetworkService::shared().setBaseURLOverride(url);
    QSignalSpy shown(&manager, &TovuNativeSurveyManager::surveyShown);
    QSignalSpy sent(&manager, &TovuNativeSurveyManager::responseSent);
    // An intro page, choices, a dropdown and text boxes; then every scale, rating variant and grid.
    const struct {
        std::string surveyId;
        int leastPages;
        bool keysAlone = false;
        bool screenReader = false;
    } runs[] = {{onboardingId, 6}, {everyTypeId, 9}, {everyTypeId, 9, true}, {everyTypeId, 9, false, true}};
    for (const auto &[surveyId, leastPages, keysAlone, screenReader] : runs) {
        SCOPED_TRACE(surveyId + (keysAlone ? " with keys alone" : screenReader ? " by a screen reader" : ""));
        // Tab, arrows, Space and typing only, or a screen reader's actions only: no pointer at all.
        TovuQuickSurveyClicker::keyboardOnly = keysAlone;
        TovuQuickSurveyClicker::screenReaderOnly = screenReader;
        shown.clear();
        sent.clear();
        clicker.expected.clear();
        log.clear();
        QMetaObject::invokeMethod(window, "configure", Q_ARG(QVariant, QStringLiteral("tovu-demo-key")),
                                  Q_ARG(QVariant, QString::fromStdString(surveyId)));
        ASSERT_TRUE(QTest::qWaitFor([&] { return hasLineStartingWith(">>> Tovu SDK: Survey pre-fetched"); }, 10000));
        QMetaObject::invokeMethod(window, "show");
        ASSERT_TRUE(QTest::qWaitFor([&] { return shown.size() == 1; }, 3000));
        auto *sheet = manager.quickSheet();
        ASSERT_TRUE(sheet);
        EXPECT_EQ(sheet->parentItem(), window->contentItem()) << "the sheet covers the window";

        const int pages = clicker.answerAll(window, [&] { return manager.quickSheet(); });
        EXPECT_GE(pages, leastPages);
        ASSERT_TRUE(manager.quickSheet());
        QQuickItem *last = manager.quickSheet()->currentPage();
        ASSERT_TRUE(last);
        EXPECT_TRUE(qobject_cast<TovuThankYouViewModel *>(last->property("model").value<QObject *>()))
            << "the thank-you page stays";
        ASSERT_TRUE(QTest::qWaitFor([&] { return sent.size() == 1; }, 5000));
        EXPECT_EQ(window->property("hostTaps").toInt(), 0) << "no click went through the sheet";

        const Json stored = storedFor(surveyId);
        ASSERT_EQ(stored.size(), keysAlone ? 2u : screenReader ? 3u : 1u) << "one response a run";
        const Json &item = stored.back()["payload"]["responses"][0];
        EXPECT_EQ(item["response_status"], "complete");
        EXPECT_EQ(item["custom_variables"],
                  (Json{{"city", "Berlin"}, {"email", "ana@example.com"}, {"fName", "Ana"}, {"plan", "pro"}}));
        TovuAnsweredPages::check(item, clicker.expected);
        manager.presenter()->dismiss();
        ASSERT_TRUE(QTest::qWaitFor([&] { return !manager.quickSheet(); }, 3000));
    }

    TovuQuickSurveyClicker::keyboardOnly = false;
    TovuQuickSurveyClicker::screenReaderOnly = false;
    // A flush from QML calls the script back.
    QMetaObject::invokeMethod(window, "flush");
    EXPECT_TRUE(QTest::qWaitFor([&] { return window->property("flushed").toBool(); }, 5000));
    TovuNetworkService::shared().setBaseURLOverride(std::nullopt);
}

TEST_F(QuickManager, SkipSendsNothingAndAFailedResponseWaitsForTheNetwork)
{
    auto manager = makeManager();
    QSignalSpy dismissed(manager.get(), &TovuNativeSurveyManager::surveyDismissed);
    QSignalSpy queued(manager.get(), &TovuNativeSurveyManager::responseQueued);
    QSignalSpy sent(manager.get(), &TovuNativeSurveyManager::responseSent);
    manager->configure("tovu-demo-key", TovuSurveyId{onboardingId}, "eu");
    ASSERT_TRUE(QTest::qWaitFor([&] { return manager->survey().has_value(); }, 10000));

    // Skip after one answer: the sheet goes, nothing is sent.
    manager->presentSurvey(window);
    ASSERT_TRUE(manager->quickSheet());
    TovuQuickSheet *sheet = manager->quickSheet();
    ASSERT_TRUE(clicker.answer(window, sheet->currentPage()));
    ASSERT_TRUE(TovuQuickSurveyClicker::clickButton(window, sheet, QStringLiteral("Skip")));
    ASSERT_TRUE(QTest::qWaitFor([&] { return dismissed.size() == 1; }, 3000));
    EXPECT_EQ(dismissed.first().first().toInt(), static_cast<int>(clicker.expected.size()));
    EXPECT_FALSE(manager->quickSheet());
    QTest::qWait(100);
    EXPECT_TRUE(sent.isEmpty());
    EXPECT_EQ(storedFor(onboardingId).size(), 0u);

    // A response the backend refuses waits in the queue; a flush sends it once.
    addFault(Json{{"pathPrefix", "/v3/survey-participation"},
                  {"status", 503},
                  {"count", 1},
                  {"body", R"({"message":"Service unavailable"})"}});
    clicker.expected.clear();
    manager->presentSurvey(window);
    clicker.answerAll(window, [&] { return manager->quickSheet(); });
    ASSERT_TRUE(QTest::qWaitFor([&] { return queued.size() == 1; }, 5000));
    EXPECT_EQ(manager->getQueuedResponses().size(), 1u);
    bool allSent = false;
    manager->flushQueue([&](bool result) { allSent = result; });
    ASSERT_TRUE(QTest::qWaitFor([&] { return manager->getQueuedResponses().empty(); }, 5000));
    EXPECT_TRUE(allSent);
    const Json stored = storedFor(onboardingId);
    ASSERT_EQ(stored.size(), 1u);
    TovuAnsweredPages::check(stored[0]["payload"]["responses"][0], clicker.expected);
}

TEST_F(QuickManager, AHostNoFrontEndCanCoverIsRefusedAndTheSessionGoesOn)
{
    auto manager = makeManager();
    QSignalSpy refused(manager.get(), &TovuNativeSurveyManager::presentationRefused);
    TovuSurvey survey{.id = "local", .name = "Local"};
    survey.questions.push_back(TovuQuestion{.id = "q", .type = TovuQuestionType::singleTextBox, .title = "Why?"});
    manager->configure(survey);
    manager->presentSurvey(window);
    QPointer<TovuQuickSheet> sheet = manager->quickSheet();
    ASSERT_TRUE(sheet);

    QWindow plainWindow; // no Qt Quick scene, and widgets do not exist in this application
    QObject plainObject;
    for (QObject *host : {static_cast<QObject *>(&plainWindow), &plainObject, static_cast<QObject *>(nullptr)}) {
        manager->presentSurvey(host);
        ASSERT_FALSE(refused.isEmpty());
        EXPECT_EQ(refused.takeLast().first().value<Refusal>(), Refusal::noHostWindow);
    }
    EXPECT_TRUE(hasLineStartingWith(">>> Tovu SDK Error: Cannot present the survey over a QWindow"));
    EXPECT_TRUE(hasLineStartingWith(">>> Tovu SDK Error: No host to present the survey on."));
    EXPECT_EQ(manager->quickSheet(), sheet.data()) << "the survey on screen stays";
    EXPECT_TRUE(sheet->isVisible());
}
