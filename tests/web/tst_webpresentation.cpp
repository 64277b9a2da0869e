// The ways a web survey is presented: the visit gate, full screen over a window,
// the survey with the fewest responses (and its failures), and the Qt Quick wrapper.

#include "TovuWebFixture.h"

#include <tovukit_io/platform/TovuKeyValueStore.h>
#include <tovukit_io/web/TovuLowestResponseRequest.h>
#include <tovukit_io/web/TovuSurveyView.h>
#include <tovukit_io/web/TovuSurveyViewController.h>
#include <tovukit_io/web/TovuSurveyViewModel.h>
#include <tovukit_io/web/TovuSwiftUIWrapper.h>
#include <tovukit_io/web/UserDefaultsHelper.h>

#include <QPushButton>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickWindow>

namespace {

class WebPresentationTest : public TovuWebFixture
{
protected:
    void TearDown() override
    {
        for (auto *controller : host.findChildren<TovuSurveyViewController *>())
            delete controller;
        TovuWebFixture::TearDown();
    }

    TovuSurveyViewController *presented() const { return host.findChild<TovuSurveyViewController *>(); }

    TovuResult<std::string> lowest(std::vector<std::string> ids, std::optional<std::string> apiKey = std::nullopt)
    {
        return await<std::string>([&](auto done) {
            TovuLowestResponseRequest::fetchSurveyURL(std::move(ids), std::move(apiKey), std::move(done));
        });
    }
};

// n = 3: the calls store 1, 2 and 3, the fourth presents and clears, and counting
// starts again; each address counts on its own; a stored blob counts as nothing.
TEST_F(WebPresentationTest, VisitGateCountsPerAddress)
{
    TovuKeyValueStore &store = UserDefaultsHelper::store();
    const QString first = pageUrl();
    const QString second = pageUrl("other");
    const std::string firstKey = "Visits:" + first.toStdString();
    const std::string secondKey = "Visits:" + second.toStdString();
    store.removeValue(firstKey);
    store.setData(secondKey, "not a number");

    std::vector<std::optional<std::int64_t>> stored;
    std::vector<bool> shown;
    for (int call = 0; call < 5; ++call) {
        TovuSurveyView::loadSurveyAfter(3, &host, &delegate, first);
        stored.push_back(store.integer(firstKey));
        shown.push_back(presented() != nullptr);
        delete presented();
    }
    EXPECT_EQ(stored, (std::vector<std::optional<std::int64_t>>{1, 2, 3, std::nullopt, 1}));
    EXPECT_EQ(shown, (std::vector<bool>{false, false, false, true, false}));

    TovuSurveyView::loadSurveyAfter(3, &host, &delegate, second);
    EXPECT_EQ(store.integer(secondKey), 1);
    EXPECT_EQ(store.integer(firstKey), 1);

    // 0 never shows; an absent address stores nothing.
    store.removeValue(secondKey);
    for (int call = 0; call < 3; ++call)
        TovuSurveyView::loadSurveyAfter(0, &host, &delegate, second);
    EXPECT_EQ(store.integer(secondKey), 3);
    EXPECT_EQ(presented(), nullptr);
    TovuSurveyView::loadSurveyAfter(1, &host, &delegate, std::nullopt);
    EXPECT_EQ(presented(), nullptr);
    store.removeValue(firstKey);
    store.removeValue(secondKey);
}

// Full screen: covers the window and follows its size, reports pass through
// unchanged, and the close button takes it off the screen.
TEST_F(WebPresentationTest, FullScreenControllerCoversTheWindowUntilClosed)
{
    QWidget *inner = new QWidget(&host);
    TovuSurveyViewController *controller = TovuSurveyView::loadFullscreenSurvey(inner, &delegate, pageUrl());
    ASSERT_NE(controller, nullptr);
    EXPECT_EQ(controller->parentWidget(), &host);
    EXPECT_EQ(controller->geometry(), host.rect());
    EXPECT_TRUE(controller->getSurveyLoadedResponse());
    EXPECT_TRUE(controller->surveyView()->getSurveyLoadedResponse());
    EXPECT_EQ(controller->surveyView()->surveyDelegate(), controller);
    EXPECT_EQ(controller->thankyouTimeout(), 3.0);

    ASSERT_TRUE(QTest::qWaitFor([&] { return delegate.reports.size() >= 2; }, pageTimeoutMs));
    EXPECT_TRUE(std::ranges::count(delegate.reports, loaded()) == 1);
    EXPECT_TRUE(std::ranges::count(delegate.reports, surveyLoadedMessage()) == 1);

    host.resize(500, 700);
    EXPECT_EQ(controller->geometry(), QRect(0, 0, 500, 700));

    QPointer<TovuSurveyViewController> watch(controller);
    QTest::mouseClick(controller->surveyView()->closeButton(), Qt::LeftButton);
    EXPECT_TRUE(QTest::qWaitFor([&] { return watch.isNull(); }, pageTimeoutMs));
}

// A controller without a delegate loads and shows the survey but reports nothing.
TEST_F(WebPresentationTest, ControllerWithoutDelegateReportsNothing)
{
    TovuSurveyViewController *controller = TovuSurveyView::loadFullscreenSurvey(&host, nullptr, pageUrl());
    ASSERT_NE(controller, nullptr);
    ASSERT_TRUE(waitForLine(">>> User Response = \n {\"type\":\"surveyLoaded\"}"));
    EXPECT_TRUE(controller->isVisible());
    EXPECT_FALSE(controller->surveyView()->viewModel()->isLoading());
    EXPECT_TRUE(delegate.reports.empty());
}

// The request goes to the UAT host unless overridden, and sends the key only when there is one.
TEST_F(WebPresentationTest, LowestResponseRequestShape)
{
    TovuNetworkService production;
    production.configure("k", "eu", TovuEnvironment::production);
    EXPECT_EQ(TovuLowestResponseRequest::endpoint(production),
              "https://uat-api.tovu.example/v3/survey-management/surveys/responses/response-count");
    production.setBaseURLOverride("http://127.0.0.1:9");
    EXPECT_EQ(TovuLowestResponseRequest::endpoint(production),
              "http://127.0.0.1:9/v3/survey-management/surveys/responses/response-count");

    using Headers = std::vector<std::pair<QByteArray, QByteArray>>;
    EXPECT_EQ(TovuLowestResponseRequest::headers(std::nullopt), Headers{});
    EXPECT_EQ(TovuLowestResponseRequest::headers(""), Headers{});
    EXPECT_EQ(TovuLowestResponseRequest::headers("key"), (Headers{{"x-api-key", "key"}}));
}

// What the backend answers and what the call makes of it.
TEST_F(WebPresentationTest, LowestResponseAnswersAndErrors)
{
    const std::string path = TovuLowestResponseRequest::path;
    const TovuResult<std::string> picked = lowest({customerSatisfaction, "other"}, "tovu-demo-key");
    ASSERT_TRUE(picked.has_value()) << picked.error().message;
    EXPECT_EQ(*picked, url + "/web/" + customerSatisfaction); // a tie goes to the first listed
    EXPECT_TRUE(std::ranges::any_of(
        log, [](const std::string &l) { return l.starts_with(">>> Tovu API Response: {\"success\":true"); }));

    struct Case {
        int status;
        std::string body;
        std::string message;
        std::string domain = TovuLowestResponseRequest::errorDomain;
    };
    const std::vector<Case> cases{
        {200, R"({"success": false, "message": "No surveys"})", "No surveys"},
        {200, R"({"success": false})", "API Error: No surveyURL found in response"},
        {200, R"({"success": true, "data": {"surveyUUID": "u"}})", "API Error: No surveyURL found in response"},
        {404, R"({"message": "Not here"})", "Not here"},
        {200, R"({"data": {"responseCount": "many"}})", "data.responseCount: expected integer, found string",
         "TovuCoding"},
        {200, "<html>", "", "TovuCoding"},
        {200, "", "No data received"},
    };
    for (const Case &c : cases) {
        SCOPED_TRACE(c.body);
        log.clear();
        answerNext(path, c.status, c.body);
        const TovuResult<std::string> result = lowest({"a"});
        ASSERT_FALSE(result.has_value());
        EXPECT_EQ(result.error().domain, c.domain);
        if (!c.message.empty()) {
            EXPECT_EQ(result.error().message, c.message);
        }
        if (c.domain == "TovuCoding") {
            EXPECT_TRUE(logged(">>> Decoding Error: " + result.error().message));
            EXPECT_TRUE(
                std::ranges::any_of(log, [](const std::string &l) { return l.starts_with(">>> Detailed Error: "); }));
        }
    }

    // The backend's own refusal of an empty list, and a connection that drops.
    log.clear();
    const TovuResult<std::string> empty = lowest({});
    ASSERT_FALSE(empty.has_value());
    EXPECT_TRUE(empty.error().message.starts_with("surveyUUIDs"));
    addFault(Json{{"pathPrefix", path}, {"drop", true}, {"count", 2}});
    const TovuResult<std::string> dropped = lowest({"a"});
    ASSERT_FALSE(dropped.has_value());
    EXPECT_EQ(dropped.error().domain, "QNetworkReply");
}

// The whole path: the backend picks, the pick is shown full screen; a failure is
// one line and shows nothing.
TEST_F(WebPresentationTest, LowestResponseSurveyIsPresented)
{
    TovuSurveyView::loadLowestResponseSurvey({customerSatisfaction}, std::nullopt, &host, &delegate);
    ASSERT_TRUE(QTest::qWaitFor([&] { return delegate.reports.size() >= 2; }, pageTimeoutMs));
    ASSERT_NE(presented(), nullptr);
    EXPECT_EQ(presented()->surveyUrl(), pageUrl());
    delete presented();

    answerNext(TovuLowestResponseRequest::path, 200, R"({"success": false, "message": "No surveys"})");
    TovuSurveyView::loadLowestResponseSurvey({"a"}, "", &host, &delegate);
    EXPECT_TRUE(waitForLine("Error loading survey: No surveys"));
    QTest::qWait(50);
    EXPECT_EQ(presented(), nullptr);
}

// The Qt Quick wrapper: embedded with its properties, the close button through
// the two-way visibility, and the full-screen class operation. Nothing here
// registers the module or adds an import path: linking tovukit_web must be enough.
TEST_F(WebPresentationTest, QmlWrapperEmbedsAndPresents)
{
    QQmlEngine engine;
    QQmlComponent component(&engine);
    component.setData(QByteArrayLiteral(R"QML(
        import QtQuick
        import TovuKit.Web
        Item {
            id: root
            width: 390; height: 844
            property string address
            property bool shown: true
            property var heard: []
            property var delegateHeard: []
            QtObject {
                id: hostDelegate
                function handleSurveyLoaded(response) { root.delegateHeard = root.delegateHeard.concat([response]) }
            }
            TovuSwiftUIWrapper {
                id: survey
                objectName: "survey"
                anchors.fill: parent
                surveyURL: root.address
                delegate: hostDelegate
                isSurveyVisible: root.shown
                onIsSurveyVisibleChanged: root.shown = isSurveyVisible
                theme: ({backgroundColor: "#fafafa", textColor: "#333333"})
                onSurveyLoaded: (response) => root.heard = root.heard.concat([response])
            }
            function presentFullScreen() { return TovuSwiftUIWrapper.presentFullScreenSurvey(root.address, hostDelegate) }
        }
    )QML"),
                      QUrl(QStringLiteral("qrc:/tests/web/Host.qml")));
    ASSERT_TRUE(component.isReady()) << component.errorString().toStdString();
    QQuickWindow window;
    window.resize(390, 844);
    std::unique_ptr<QObject> root(component.createWithInitialProperties({{QStringLiteral("address"), pageUrl()}}));
    ASSERT_NE(root, nullptr) << component.errorString().toStdString();
    auto *item = qobject_cast<QQuickItem *>(root.get());
    item->setParentItem(window.contentItem());
    window.show();

    auto heard = [&](const char *name) {
        return root->property(name).toList();
    };
    ASSERT_TRUE(QTest::qWaitFor([&] { return heard("heard").size() >= 2; }, pageTimeoutMs));
    EXPECT_EQ(heard("delegateHeard"), heard("heard"));
    EXPECT_TRUE(heard("heard").contains(QVariant(loaded())));
    EXPECT_TRUE(heard("heard").contains(QVariant(surveyLoadedMessage())));

    auto *survey = root->findChild<TovuSwiftUIWrapper *>(QStringLiteral("survey"));
    ASSERT_NE(survey, nullptr);
    EXPECT_EQ(survey->theme()->backgroundColor, QColor(QStringLiteral("#fafafa")));
    QQuickItem *close = survey->findChild<QQuickItem *>(QStringLiteral("closeButton"));
    ASSERT_NE(close, nullptr);
    EXPECT_TRUE(close->isVisible());
    const QPointF corner = close->mapToScene(QPointF(close->width() / 2, close->height() / 2));
    QTest::mouseClick(&window, Qt::LeftButton, {}, corner.toPoint());
    EXPECT_TRUE(QTest::qWaitFor([&] { return !root->property("shown").toBool(); }, pageTimeoutMs));
    EXPECT_FALSE(survey->isVisible());

    // Full screen over the same window, removed again by its own close button.
    QVariant presentedWrapper;
    QMetaObject::invokeMethod(root.get(), "presentFullScreen", Q_RETURN_ARG(QVariant, presentedWrapper));
    QPointer<TovuSwiftUIWrapper> overlay = qobject_cast<TovuSwiftUIWrapper *>(presentedWrapper.value<QObject *>());
    ASSERT_NE(overlay, nullptr);
    EXPECT_EQ(overlay->parentItem(), window.contentItem());
    EXPECT_EQ(overlay->size(), window.contentItem()->size());
    ASSERT_TRUE(QTest::qWaitFor([&] { return heard("delegateHeard").size() >= 4; }, pageTimeoutMs));
    overlay->viewModel()->closeTapped();
    EXPECT_TRUE(QTest::qWaitFor([&] { return overlay.isNull(); }, pageTimeoutMs));
    root.reset();
}

} // namespace
