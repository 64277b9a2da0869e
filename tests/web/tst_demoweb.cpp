// The demo's web survey panel against its own backend: the hosted page
// embedded in the host screen, full screen, after three visits, and the
// sample with the fewest responses, each reporting through the bridge.

#include "TovuDemoActivityPane.h"
#include "TovuDemoBackend.h"
#include "TovuDemoHostScreen.h"
#include "TovuDemoSession.h"
#include "TovuDemoWebPanel.h"
#include "TovuDemoWindow.h"

#include <tovukit_io/platform/TovuUserDefaults.h>
#include <tovukit_io/web/TovuSurveyViewController.h>

#include <QLabel>
#include <QPushButton>
#include <QTest>
#include <QWebEngineView>

#include <gtest/gtest.h>

TEST(DemoWeb, ThePanelShowsTheHostedPageEveryWay)
{
    TovuDemoBackend backend;
    ASSERT_TRUE(backend.start()) << backend.errorString().toStdString();
    TovuDemoSession session(backend);
    TovuDemoWindow window(backend, session);
    window.show();
    auto *panel = qobject_cast<TovuDemoWebPanel *>(window.webPanel());
    ASSERT_TRUE(panel);
    QWidget *host = window.hostScreen();
    const auto reports = [&] {
        return window.activityPane()->logText().count(QStringLiteral("web: handleSurveyLoaded"));
    };
    const auto controller = [&] {
        return host->window()->findChild<TovuSurveyViewController *>();
    };
    const auto closeFullScreen = [&] {
        ASSERT_TRUE(QTest::qWaitFor([&] { return controller() != nullptr; }, 10000));
        controller()->surveyView()->closeButtonTapped();
        ASSERT_TRUE(QTest::qWaitFor([&] { return controller() == nullptr; }, 5000));
    };

    // Embedded below the host screen's header, until removed.
    QTest::mouseClick(panel->embeddedButton(), Qt::LeftButton);
    ASSERT_TRUE(panel->embeddedView());
    EXPECT_EQ(panel->embeddedView()->parentWidget(), host);
    ASSERT_TRUE(QTest::qWaitFor([&] { return reports() >= 1; }, 15000))
        << window.activityPane()->logText().toStdString();
    EXPECT_TRUE(panel->embeddedView()->surveyWebView()->url().toString().endsWith(
        QStringLiteral("/web/") + backend.findSample(session.targetId())->surveyId));
    QTest::mouseClick(panel->embeddedButton(), Qt::LeftButton);
    EXPECT_FALSE(panel->embeddedView());

    // Full screen over the window.
    qsizetype before = reports();
    QTest::mouseClick(panel->fullScreenButton(), Qt::LeftButton);
    ASSERT_TRUE(QTest::qWaitFor([&] { return reports() > before; }, 15000));
    closeFullScreen();

    // The fourth visit shows it; the count starts again.
    const QString page = backend.url() + QStringLiteral("/web/") + backend.findSample(session.targetId())->surveyId;
    TovuUserDefaults::standard().removeValue("Visits:" + page.toStdString());
    for (int visit = 1; visit <= TovuDemoWebPanel::visitsBeforeShowing; ++visit) {
        QTest::mouseClick(panel->afterVisitsButton(), Qt::LeftButton);
        EXPECT_EQ(controller(), nullptr) << "visit " << visit;
    }
    EXPECT_TRUE(panel->findChild<QLabel *>()->text().startsWith(QStringLiteral("3 ")));
    QTest::mouseClick(panel->afterVisitsButton(), Qt::LeftButton);
    closeFullScreen();

    // The backend picks among the samples.
    before = reports();
    QTest::mouseClick(panel->lowestButton(), Qt::LeftButton);
    ASSERT_TRUE(QTest::qWaitFor([&] { return reports() > before; }, 15000))
        << window.activityPane()->logText().toStdString();
    closeFullScreen();
}
