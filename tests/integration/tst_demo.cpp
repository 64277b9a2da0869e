// tovu-demo in this process: playing itself as `make demo` does on a machine
// without a display (every page of the sample with every question type
// answered with real clicks and typing, and what the backend stored held
// against the answers given, value by value; online, and offline first with
// the queue flushed on coming back), and its window's controls as a person
// uses them.

#include "TovuDemoActivityPane.h"
#include "TovuDemoAnswerChecks.h"
#include "TovuDemoAutoplay.h"
#include "TovuDemoBackend.h"
#include "TovuDemoControlPanel.h"
#include "TovuDemoHostScreen.h"
#include "TovuDemoLook.h"
#include "TovuDemoSession.h"
#include "TovuDemoWidgetPagePlayer.h"
#include "TovuDemoWindow.h"

#include <tovukit_io/ui/TovuToasterView.h>
#include <tovukit_io/ui/kit/TovuButton.h>
#include <tovukit_io/viewmodel/TovuMotion.h>
#include <tovukit_io/viewmodel/TovuThemeEngine.h>

#include <QApplication>
#include <QComboBox>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QStyle>
#include <QTemporaryDir>
#include <QTest>

#include <gtest/gtest.h>

#include <memory>
#include <optional>

using namespace TovuDemoAnswerChecks;

class Demo : public testing::Test
{
protected:
    void SetUp() override
    {
        TovuMotion::setDurationScale(0);
        ASSERT_TRUE(backend.start()) << backend.errorString().toStdString();
        ASSERT_TRUE(shots.isValid());
        session = std::make_unique<TovuDemoSession>(backend);
        window = std::make_unique<TovuDemoWindow>(backend, *session);
        window->show();
        sample = backend.findSample({});
        ASSERT_TRUE(sample);
        ASSERT_EQ(sample->stem, QStringLiteral("every-question-type"));
    }

    void TearDown() override
    {
        autoplay.reset();
        window.reset();
        session.reset();
        TovuMotion::setDurationScale(1);
        QApplication::setPalette(TovuDemoLook::palette(false, QApplication::style()->standardPalette()));
        TovuThemeEngine::shared().configureAppTheme(TovuAppTheme{});
    }

    /// Plays the sample to the end; the exit code the program would have.
    int play(bool offlineFirst)
    {
        autoplay = std::make_unique<TovuDemoAutoplay>(
            *window, *session, backend, *sample,
            TovuDemoAutoplay::Settings{.offlineFirst = offlineFirst,
                                       .screenshotsDir = shots.path(),
                                       .pace = TovuDemoPagePlayer::briskPace,
                                       .timeoutMs = 20000},
            [this](const QString &line) { out << line; }, [this](const QString &line) { err << line; });
        std::optional<int> code;
        QObject::connect(autoplay.get(), &TovuDemoAutoplay::finished, [&](int exitCode) { code = exitCode; });
        autoplay->start();
        EXPECT_TRUE(QTest::qWaitFor([&] { return code.has_value(); }, 25000)) << "autoplay never finished";
        return code.value_or(-1);
    }

    TovuDemoBackend backend;
    QTemporaryDir shots;
    std::unique_ptr<TovuDemoSession> session;
    std::unique_ptr<TovuDemoWindow> window;
    std::unique_ptr<TovuDemoAutoplay> autoplay;
    const TovuDemoSample *sample = nullptr;
    QStringList out;
    QStringList err;
};

TEST_F(Demo, AutoplayAnswersEveryPageAndTheBackendStoresItAsGiven)
{
    ASSERT_EQ(play(false), 0) << err.join(u'\n').toStdString();
    EXPECT_TRUE(err.isEmpty()) << err.join(u'\n').toStdString();
    expectEveryTypeAnsweredWithItsOwnChoices(autoplay->given());
    expectStoredAsGiven(autoplay->storedResponse(), autoplay->given(), *sample);

    // A few answers as a person reads them: the clicks chose these.
    EXPECT_EQ(summaryOf(autoplay->given(), TovuQuestionType::singleChoice), "A meal kit");
    EXPECT_EQ(summaryOf(autoplay->given(), TovuQuestionType::dropdown), "Right in my delivery slot");
    EXPECT_EQ(summaryOf(autoplay->given(), TovuQuestionType::nps), "9");
    EXPECT_EQ(summaryOf(autoplay->given(), TovuQuestionType::multipleTextBox),
              "Ana Souza / ana.souza@example.com / Weekday evenings");

    // One progress line per page, intro and thank-you included.
    const auto pageLines
        = std::ranges::count_if(out, [](const QString &line) { return line.contains(QStringLiteral("/11  ")); });
    EXPECT_EQ(pageLines, 11) << out.join(u'\n').toStdString();
    EXPECT_TRUE(out.contains(QStringLiteral("tovu-demo: response sent")));

    // A phone-sized picture of every page, and one of the window.
    const QStringList files = QDir(shots.path()).entryList({QStringLiteral("*.png")}, QDir::Files, QDir::Name);
    ASSERT_EQ(files.size(), 12) << files.join(u' ').toStdString();
    EXPECT_EQ(files.first(), QStringLiteral("01-intro.png"));
    EXPECT_TRUE(files.contains(QStringLiteral("07-nps.png")));
    EXPECT_TRUE(files.contains(QStringLiteral("11-thank-you.png")));
    EXPECT_EQ(QImage(QDir(shots.path()).filePath(files.first())).size(), QSize(390, 844));
    EXPECT_TRUE(files.contains(QStringLiteral("demo-window.png")));

    // The window shows what happened.
    EXPECT_EQ(window->activityPane()->storedCount(), 1);
    EXPECT_TRUE(window->activityPane()->logText().contains(QStringLiteral("◆ responseSent: ")));
    EXPECT_TRUE(window->activityPane()->logText().contains(QStringLiteral(">>> Tovu SDK: API key verified")));
}

TEST_F(Demo, AutoplayOfflineFirstQueuesTheResponseAndTheFlushDeliversItOnce)
{
    ASSERT_EQ(play(true), 0) << err.join(u'\n').toStdString();
    EXPECT_EQ(autoplay->mostQueued(), 1);
    EXPECT_EQ(autoplay->flushed(), (std::pair{1, 0}));
    EXPECT_EQ(session->queuedCount(), 0);
    expectEveryTypeAnsweredWithItsOwnChoices(autoplay->given());
    expectStoredAsGiven(autoplay->storedResponse(), autoplay->given(), *sample);

    const QString log = window->activityPane()->logText();
    EXPECT_TRUE(log.contains(QStringLiteral(">>> Tovu SDK: Submit failed, queuing for retry")));
    EXPECT_TRUE(log.contains(QStringLiteral(">>> Tovu SDK: Response saved to offline queue (total: 1)")));
    EXPECT_TRUE(log.contains(QStringLiteral(">>> Tovu SDK: Flushing 1 offline response(s)...")));
    EXPECT_TRUE(log.contains(QStringLiteral("◆ queueFlushed: 1 sent, 0 failed")));
    EXPECT_EQ(window->activityPane()->storedCount(), 1) << "sent once, by the flush";
}

// The window's controls, as a person uses them with a display.
TEST_F(Demo, TheWindowsControlsDriveTheLibrary)
{
    TovuDemoControlPanel *controls = window->controlPanel();
    const auto sheet = [&] {
        return session->manager().toasterView();
    };
    const auto log = [&] {
        return window->activityPane()->logText();
    };
    const auto click = [](QWidget *widget) {
        ASSERT_TRUE(widget);
        QTest::mouseClick(widget, Qt::LeftButton);
    };
    const auto skip = [&] {
        ASSERT_TRUE(QTest::qWaitFor([&] { return sheet() != nullptr; }, 5000));
        click(sheet()->skipButton());
        ASSERT_TRUE(QTest::qWaitFor([&] { return sheet() == nullptr; }, 3000));
    };
    const TovuDemoSample *onboarding = backend.findSample(QStringLiteral("onboarding"));
    ASSERT_TRUE(onboarding);

    // Choosing a sample configures its collector id; the key is verified and the survey pre-fetched.
    auto *samples = controls->findChild<QComboBox *>(QStringLiteral("sample"));
    samples->setCurrentIndex(samples->findData(onboarding->stem));
    EXPECT_EQ(session->targetId(), onboarding->collectorId);
    EXPECT_EQ(controls->findChild<QLineEdit *>(QStringLiteral("configuredId"))->text(), onboarding->collectorId);
    ASSERT_TRUE(QTest::qWaitFor([&] { return session->manager().survey().has_value(); }, 5000));

    // Show now, and the intercept three seconds later.
    click(controls->showNowButton());
    skip();
    EXPECT_TRUE(log().contains(QStringLiteral("◆ surveyShown: \"New user onboarding\"")));
    EXPECT_TRUE(log().contains(QStringLiteral("◆ surveyDismissed: 0 question(s) answered")));
    QElapsedTimer clock;
    clock.start();
    click(controls->interceptButton());
    QTest::qWait(1500);
    EXPECT_EQ(sheet(), nullptr) << "not yet";
    skip();
    EXPECT_GE(clock.elapsed(), 3000);

    // Offline: the survey's response waits in the queue, and a flush cannot send it.
    click(controls->onlineButton());
    ASSERT_TRUE(QTest::qWaitFor([&] { return !session->isOnline(); }, 3000));
    EXPECT_FALSE(window->hostScreen()->isOnline());
    EXPECT_EQ(controls->onlineButton()->text(), QStringLiteral("Offline — go online"));
    TovuDemoWidgetPagePlayer player(sheet, window->hostScreen());
    bool played = false;
    QObject::connect(&player, &TovuDemoPagePlayer::finished, [&] { played = true; });
    player.start(9);
    click(controls->showNowButton());
    ASSERT_TRUE(QTest::qWaitFor([&] { return played && session->queuedCount() == 1; }, 10000));
    EXPECT_EQ(controls->queueLabel()->text(), QStringLiteral("Queued responses: <b>1</b>"));
    EXPECT_TRUE(controls->flushButton()->isEnabled());
    click(controls->flushButton());
    ASSERT_TRUE(QTest::qWaitFor([&] { return log().contains(QStringLiteral("Flush: some responses failed")); }, 5000));
    EXPECT_EQ(session->queuedCount(), 1);

    // Online again: the manager flushes by itself and the backend has the response.
    click(controls->onlineButton());
    ASSERT_TRUE(QTest::qWaitFor([&] { return window->activityPane()->storedCount() == 1; }, 5000));
    EXPECT_TRUE(session->isOnline());
    EXPECT_EQ(session->queuedCount(), 0);
    EXPECT_EQ(controls->queueLabel()->text(), QStringLiteral("Queued responses: <b>0</b>"));
    EXPECT_TRUE(log().contains(QStringLiteral("◆ queueFlushed: 1 sent, 0 failed")));

    // The sample with the fewest responses: not onboarding any more, the first of the others.
    QString shown;
    QObject::connect(session.get(), &TovuDemoSession::surveyShown, [&](const QString &id) { shown = id; });
    click(controls->lowestButton());
    ASSERT_TRUE(QTest::qWaitFor([&] { return !shown.isEmpty(); }, 5000));
    EXPECT_EQ(shown, backend.samples().front().surveyId);
    skip();

    // Dark, and the host theme for the next pages.
    click(controls->findChild<QRadioButton *>(QStringLiteral("dark")));
    EXPECT_TRUE(TovuDemoLook::isDark());
    auto *theme = controls->findChild<QComboBox *>(QStringLiteral("theme"));
    theme->setCurrentIndex(theme->findData(int(TovuDemoOptions::Theme::host)));
    ASSERT_TRUE(TovuThemeEngine::shared().appTheme());
    EXPECT_EQ(TovuThemeEngine::shared().appTheme()->cornerRadius, 28);
    EXPECT_EQ(TovuThemeEngine::shared().appTheme()->primaryColor, TovuDemoLook::brandColor(true));
    click(controls->findChild<QRadioButton *>(QStringLiteral("light")));
    EXPECT_EQ(TovuThemeEngine::shared().appTheme()->primaryColor, TovuDemoLook::brandColor(false));

    // By survey id, and back to a collector id: a fresh manager, as a survey id would win otherwise.
    click(controls->findChild<QRadioButton *>(QStringLiteral("bySurvey")));
    EXPECT_EQ(session->target(), TovuDemoSession::Target::survey);
    EXPECT_EQ(session->manager().configuredSurveyId(), onboarding->surveyId.toStdString());
    click(controls->findChild<QRadioButton *>(QStringLiteral("byCollector")));
    EXPECT_EQ(session->manager().configuredSurveyId(), std::nullopt);
    EXPECT_EQ(session->manager().configuredCollectorId(), onboarding->collectorId.toStdString());

    // An id typed in that the backend does not know: the failure is a line, and no sheet.
    auto *id = controls->findChild<QLineEdit *>(QStringLiteral("configuredId"));
    id->setText(QStringLiteral("collector-nope"));
    QTest::keyClick(id, Qt::Key_Return);
    EXPECT_EQ(session->targetId(), QStringLiteral("collector-nope"));
    click(controls->showNowButton());
    ASSERT_TRUE(
        QTest::qWaitFor([&] { return log().contains(QStringLiteral("◆ presentationRefused: fetchFailed")); }, 5000));
    EXPECT_TRUE(log().contains(QStringLiteral(">>> Tovu SDK Error [Collector]: Collector not found")));
    EXPECT_EQ(sheet(), nullptr);
}
