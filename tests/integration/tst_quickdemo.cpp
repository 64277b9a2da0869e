// tovu-quickdemo, the Qt Quick twin of tovu-demo, under a QGuiApplication:
// playing itself in this process through the Qt Quick sheet (every page of the
// sample with every question type answered with real clicks and key presses on
// the window, found as a screen reader finds them, and what the backend stored
// held against the answers given, value by value), its window's QML controls as
// a person uses them, and the program itself as `make demo FRONTEND=quick` runs
// it without a display.

#include "TovuDemoAnswerChecks.h"
#include "TovuDemoAutoplay.h"
#include "TovuDemoBackend.h"
#include "TovuDemoInput.h"
#include "TovuDemoLook.h"
#include "TovuDemoRun.h"
#include "TovuDemoScreenReader.h"
#include "TovuDemoSession.h"
#include "TovuQuickDemo.h"

#include <tovukit_io/quick/TovuQuickSheet.h>
#include <tovukit_io/viewmodel/TovuThemeEngine.h>

#include <QDir>
#include <QElapsedTimer>
#include <QGuiApplication>
#include <QImage>
#include <QQuickItem>
#include <QQuickWindow>
#include <QTemporaryDir>
#include <QTest>

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <optional>

using namespace TovuDemoAnswerChecks;

namespace {

QStringList pngsIn(const QString &folder)
{
    return QDir(folder).entryList({QStringLiteral("*.png")}, QDir::Files, QDir::Name);
}

} // namespace

class QuickDemo : public testing::Test
{
protected:
    void SetUp() override
    {
        ASSERT_TRUE(backend.start()) << backend.errorString().toStdString();
        ASSERT_TRUE(shots.isValid());
        sample = backend.findSample({});
        ASSERT_TRUE(sample);
        session = std::make_unique<TovuDemoSession>(backend);
        demo = std::make_unique<TovuQuickDemo>(backend, *session);
        ASSERT_TRUE(demo->window()) << "Main.qml did not load";
        demo->open(false);
    }

    void TearDown() override
    {
        autoplay.reset();
        demo.reset();
        session.reset();
        QGuiApplication::setPalette(light);
        TovuThemeEngine::shared().configureAppTheme(TovuAppTheme{});
    }

    bool logged(const QString &text) const
    {
        const QStringList log = demo->log()->stringList();
        return std::ranges::any_of(log, [&text](const QString &line) { return line.contains(text); });
    }

    /// The window's control of `role` named `name`, as a screen reader finds it.
    QAccessibleInterface *control(const QString &name, QAccessible::Role role = QAccessible::Button) const
    {
        return TovuDemoScreenReader::find(demo->window()->contentItem(), role, name);
    }

    /// Clicks it once it is there and takes input.
    void click(const QString &name, QAccessible::Role role = QAccessible::Button) const
    {
        QAccessibleInterface *found = nullptr;
        ASSERT_TRUE(QTest::qWaitFor([&] { return (found = control(name, role)) != nullptr; }, 3000))
            << name.toStdString();
        TovuDemoScreenReader::click(found);
    }

    const QPalette light = QGuiApplication::palette();
    TovuDemoBackend backend;
    QTemporaryDir shots;
    const TovuDemoSample *sample = nullptr;
    std::unique_ptr<TovuDemoSession> session;
    std::unique_ptr<TovuQuickDemo> demo;
    std::unique_ptr<TovuDemoAutoplay> autoplay;
};

TEST_F(QuickDemo, AutoplayAnswersEveryPageThroughTheQuickSheetAndTheBackendStoresItAsGiven)
{
    demo->setLook(true, TovuDemoOptions::Theme::host, QColor());
    QStringList out;
    QStringList err;
    autoplay = std::make_unique<TovuDemoAutoplay>(
        *demo, *session, backend, *sample,
        TovuDemoAutoplay::Settings{.screenshotsDir = shots.path(),
                                   .pace = TovuDemoPagePlayer::briskPace,
                                   .timeoutMs = 20000,
                                   .program = QStringLiteral("tovu-quickdemo")},
        [&](const QString &line) { out << line; }, [&](const QString &line) { err << line; });
    std::optional<int> code;
    QObject::connect(autoplay.get(), &TovuDemoAutoplay::finished, [&](int exitCode) { code = exitCode; });
    autoplay->start();
    ASSERT_TRUE(QTest::qWaitFor([&] { return code.has_value(); }, 25000)) << "autoplay never finished";
    ASSERT_EQ(*code, 0) << err.join(u'\n').toStdString();
    EXPECT_TRUE(err.isEmpty()) << err.join(u'\n').toStdString();

    const auto &given = autoplay->given();
    expectEveryTypeAnsweredWithItsOwnChoices(given);
    expectStoredAsGiven(autoplay->storedResponse(), given, *sample);
    // The same answers as the widget demo gives: one script for both.
    EXPECT_EQ(summaryOf(given, TovuQuestionType::singleChoice), "A meal kit");
    EXPECT_EQ(summaryOf(given, TovuQuestionType::multipleChoice), "Search, Live delivery tracking");
    EXPECT_EQ(summaryOf(given, TovuQuestionType::dropdown), "Right in my delivery slot");
    EXPECT_EQ(summaryOf(given, TovuQuestionType::rating), "4 of 5 (Good)");
    EXPECT_EQ(summaryOf(given, TovuQuestionType::multiRating), "Good, Great, Okay");
    EXPECT_EQ(summaryOf(given, TovuQuestionType::nps), "9");
    EXPECT_EQ(summaryOf(given, TovuQuestionType::multiNps), "8, 9, 7");
    EXPECT_EQ(summaryOf(given, TovuQuestionType::multipleTextBox),
              "Ana Souza / ana.souza@example.com / Weekday evenings");
    EXPECT_TRUE(out.contains(QStringLiteral("tovu-quickdemo: response sent"))) << out.join(u'\n').toStdString();

    // A phone-sized picture of every page, and one of the window.
    const QStringList files = pngsIn(shots.path());
    ASSERT_EQ(files.size(), 12) << files.join(u' ').toStdString();
    EXPECT_EQ(files.first(), QStringLiteral("01-intro.png"));
    EXPECT_TRUE(files.contains(QStringLiteral("06-multi-rating.png")));
    EXPECT_TRUE(files.contains(QStringLiteral("11-thank-you.png")));
    const QImage intro(QDir(shots.path()).filePath(files.first()));
    EXPECT_EQ(intro.size(), QSize(390, 844));
    // Dark: the host screen's black at its top, under the sheet's dimming, and the
    // host theme's dark green-black at the left edge of the sheet.
    EXPECT_LT(qGray(intro.pixel(200, 2)), 30);
    EXPECT_EQ(intro.pixelColor(4, 720), TovuDemoLook::hostTheme(true).backgroundColor);
    EXPECT_EQ(QImage(QDir(shots.path()).filePath(QStringLiteral("demo-window.png"))).size(), demo->window()->size());

    // The window shows what happened: the stored response, and the log.
    EXPECT_TRUE(demo->isShowingStoredResponses());
    EXPECT_EQ(demo->storedResponses().size(), 1);
    EXPECT_TRUE(logged(QStringLiteral("◆ surveyShown: \"Fresh Basket delivery feedback\"")));
    EXPECT_TRUE(logged(QStringLiteral("◆ responseSent: ")));
    EXPECT_TRUE(logged(QStringLiteral(">>> Tovu SDK: API key verified")));
}

// The window's controls, as a person uses them with a display: the QML calls the
// manager with the phone's screen as the host, and `demo` for the rest.
TEST_F(QuickDemo, TheWindowsControlsDriveTheLibrary)
{
    const auto sheet = [&] {
        return session->manager().quickSheet();
    };
    const auto skip = [&] {
        ASSERT_TRUE(QTest::qWaitFor([&] { return sheet() != nullptr; }, 5000));
        click(QStringLiteral("Skip"));
        ASSERT_TRUE(QTest::qWaitFor([&] { return sheet() == nullptr; }, 3000));
    };
    const TovuDemoSample *onboarding = backend.findSample(QStringLiteral("onboarding"));
    ASSERT_TRUE(onboarding);

    // Choosing a sample configures its collector id; the key is verified and the survey pre-fetched.
    click(onboarding->title);
    EXPECT_EQ(session->targetId(), onboarding->collectorId);
    ASSERT_TRUE(QTest::qWaitFor([&] { return session->manager().survey().has_value(); }, 5000));

    // Show now, over the phone's screen, and the intercept three seconds later.
    click(QStringLiteral("Show now"));
    ASSERT_TRUE(QTest::qWaitFor([&] { return sheet() != nullptr; }, 5000));
    EXPECT_EQ(sheet()->parentItem(), demo->hostScreen()) << "the sheet covers the phone's screen, not the window";
    skip();
    EXPECT_TRUE(logged(QStringLiteral("● fetchAndPresentSurvey(host)")));
    EXPECT_TRUE(logged(QStringLiteral("◆ surveyShown: \"New user onboarding\"")));
    EXPECT_TRUE(logged(QStringLiteral("◆ surveyDismissed: 0 question(s) answered")));
    QElapsedTimer clock;
    clock.start();
    click(QStringLiteral("Intercept in 3 s"));
    QTest::qWait(1500);
    EXPECT_EQ(sheet(), nullptr) << "not yet";
    skip();
    EXPECT_GE(clock.elapsed(), 3000);

    // Offline: the survey's response waits in the queue, and a flush cannot send it.
    click(QStringLiteral("Online — go offline"));
    ASSERT_TRUE(QTest::qWaitFor([&] { return control(QStringLiteral("Offline — go online")) != nullptr; }, 3000));
    EXPECT_FALSE(session->isOnline());
    const std::unique_ptr<TovuDemoPagePlayer> player = demo->createPagePlayer();
    bool played = false;
    QObject::connect(player.get(), &TovuDemoPagePlayer::finished, [&] { played = true; });
    player->start(9);
    click(QStringLiteral("Show now"));
    ASSERT_TRUE(QTest::qWaitFor([&] { return played && session->queuedCount() == 1; }, 10000));
    // The QML reads the count from the manager's signal, and enables the flush.
    click(QStringLiteral("Flush queue"));
    ASSERT_TRUE(QTest::qWaitFor([&] { return logged(QStringLiteral("Flush: some responses failed")); }, 5000));
    EXPECT_EQ(session->queuedCount(), 1);

    // Online again: the manager flushes by itself and the backend has the response.
    click(QStringLiteral("Offline — go online"));
    ASSERT_TRUE(QTest::qWaitFor([&] { return demo->storedResponses().size() == 1; }, 5000));
    EXPECT_EQ(session->queuedCount(), 0);
    EXPECT_TRUE(logged(QStringLiteral("◆ queueFlushed: 1 sent, 0 failed")));
    EXPECT_TRUE(QTest::qWaitFor([&] { return control(QStringLiteral("Flush queue")) == nullptr; }, 1000))
        << "nothing left to flush";

    // The sample with the fewest responses: not onboarding any more, the first of the others.
    QString shown;
    QObject::connect(session.get(), &TovuDemoSession::surveyShown, [&](const QString &id) { shown = id; });
    click(QStringLiteral("Fewest responses"));
    ASSERT_TRUE(QTest::qWaitFor([&] { return !shown.isEmpty(); }, 5000));
    EXPECT_EQ(shown, backend.samples().front().surveyId);
    skip();

    // Dark, and the host theme for the next pages.
    click(QStringLiteral("Dark"), QAccessible::RadioButton);
    EXPECT_TRUE(TovuDemoLook::isDark());
    click(QStringLiteral("Host"), QAccessible::RadioButton);
    ASSERT_TRUE(TovuThemeEngine::shared().appTheme());
    EXPECT_EQ(TovuThemeEngine::shared().appTheme()->cornerRadius, 28);
    EXPECT_EQ(TovuThemeEngine::shared().appTheme()->primaryColor, TovuDemoLook::brandColor(true));
    click(QStringLiteral("Light"), QAccessible::RadioButton);
    EXPECT_EQ(TovuThemeEngine::shared().appTheme()->primaryColor, TovuDemoLook::brandColor(false));

    // By survey id, and back to a collector id: a fresh manager, as a survey id would win otherwise.
    click(QStringLiteral("Survey id"), QAccessible::RadioButton);
    EXPECT_EQ(session->manager().configuredSurveyId(), onboarding->surveyId.toStdString());
    click(QStringLiteral("Collector id"), QAccessible::RadioButton);
    EXPECT_EQ(session->manager().configuredSurveyId(), std::nullopt);
    EXPECT_EQ(session->manager().configuredCollectorId(), onboarding->collectorId.toStdString());

    // An id typed in that the backend does not know: the failure is a line, and no sheet.
    click(QStringLiteral("Id"), QAccessible::EditableText);
    QTest::keyClick(demo->window(), Qt::Key_A, Qt::ControlModifier);
    TovuDemoInput::type(demo->window(), QStringLiteral("collector-nope"));
    QTest::keyClick(demo->window(), Qt::Key_Return);
    EXPECT_EQ(session->targetId(), QStringLiteral("collector-nope"));
    click(QStringLiteral("Show now"));
    ASSERT_TRUE(QTest::qWaitFor([&] { return logged(QStringLiteral("◆ presentationRefused: fetchFailed")); }, 5000));
    EXPECT_TRUE(logged(QStringLiteral(">>> Tovu SDK Error [Collector]: Collector not found")));
    EXPECT_EQ(sheet(), nullptr);
}

// As `make demo FRONTEND=quick` runs it on a machine without a display, offline
// first, so the response waits in the queue until the demo comes back online.
TEST(QuickDemoProgram, WithoutADisplayPlaysOfflineFirstAndPrintsWhatWasStored)
{
    QTemporaryDir folder;
    ASSERT_TRUE(folder.isValid());
    const QString program = QStringLiteral(TOVU_QUICKDEMO_EXECUTABLE);
    const TovuDemoRun run = TovuDemoRun::headless(program, {QStringLiteral("--offline-first")}, folder.path());
    ASSERT_EQ(run.exitStatus, QProcess::NormalExit) << run.err.toStdString();
    ASSERT_EQ(run.exitCode, 0) << run.out.toStdString() << run.err.toStdString();
    EXPECT_TRUE(run.err.isEmpty()) << run.err.toStdString();
    EXPECT_TRUE(run.out.startsWith(QStringLiteral("tovu-quickdemo: no display here"))) << run.out.toStdString();

    // One line per page, in order, then the queue flushed once the demo is back online.
    EXPECT_EQ(run.pageKinds().toStdString(),
              "intro single-choice multiple-choice dropdown rating multi-rating nps "
              "multi-nps single-text-box multiple-text-box thank-you");
    EXPECT_TRUE(run.out.contains(QStringLiteral("tovu-quickdemo: response queued (1 waiting); coming back online")));
    EXPECT_TRUE(run.out.contains(QStringLiteral("flushed its queue: 1 sent, 0 failed, 0 waiting")));

    const auto stored = run.printedResponse(QStringLiteral("tovu-quickdemo"));
    ASSERT_TRUE(stored.is_object()) << run.out.toStdString();
    EXPECT_EQ(stored["payload"]["collector_id"], "collector-every-question-type");
    // Nine pages and the NPS page's follow-up.
    EXPECT_EQ(stored["payload"]["responses"][0]["questions"].size(), 10u);
    EXPECT_EQ(pngsIn(QDir(folder.path()).filePath(QStringLiteral("demo-screenshots"))).size(), 12);

    // A refusal is one line with the program's name, and exit status 2.
    const TovuDemoRun refused = TovuDemoRun::headless(program, {QStringLiteral("--bogus")});
    EXPECT_EQ(refused.exitCode, 2);
    EXPECT_EQ(refused.err, QStringLiteral("tovu-quickdemo: unknown option --bogus (see --help)\n"));
}
