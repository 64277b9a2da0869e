// The web survey view against the local backend's hosted page: the load and its
// reports, the page's messages through the bridge with bad bodies among them,
// what the page can reach, the link policy and the close button.

#include "TovuWebFixture.h"

#include <tovukit_io/web/TovuActivityIndicator.h>
#include <tovukit_io/web/TovuSurveyView.h>
#include <tovukit_io/web/TovuSurveyViewModel.h>
#include <tovukit_io/web/TovuUserContentController.h>

#include <QDir>
#include <QPushButton>
#include <QVBoxLayout>
#include <QWebEngineView>

namespace {

class WebSurveyViewTest : public TovuWebFixture
{
protected:
    void SetUp() override
    {
        TovuWebFixture::SetUp();
        auto *layout = new QVBoxLayout(&host);
        layout->setContentsMargins(0, 0, 0, 0);
        view = new TovuSurveyView(&host);
        layout->addWidget(view);
        view->show();
        view->setSurveyDelegate(&delegate);
    }

    void TearDown() override
    {
        delete view.data();
        TovuWebFixture::TearDown();
    }

    QWebEnginePage *page() const { return view->surveyWebView()->page(); }

    /// Loads the hosted page and waits until the page's own "surveyLoaded" arrived.
    void loadHostedPage()
    {
        view->loadEmbedSurvey(pageUrl());
        ASSERT_TRUE(QTest::qWaitFor([&] { return delegate.reports.size() >= 2; }, pageTimeoutMs))
            << "reports: " << delegate.reports.size();
    }

    /// Posts `body` (a script expression) from the page, then a marker, and
    /// waits for the marker: everything before it has been handled by then.
    void post(const QString &body)
    {
        static int marker = 0;
        const QString sentinel = QStringLiteral("marker-%1").arg(++marker);
        evaluate(page(),
                 QStringLiteral("window.webkit.messageHandlers.surveyResponse.postMessage(%1);"
                                "window.webkit.messageHandlers.surveyResponse.postMessage('%2'); true")
                     .arg(body, sentinel));
        ASSERT_TRUE(waitForLine(">>> Unexpected message body: " + sentinel.toStdString())) << body.toStdString();
    }

    /// Activates the link `selector` as a click does. (Synthetic mouse input does
    /// not reach the page on the offscreen platform, so the page clicks it.)
    void clickElement(const QString &selector)
    {
        evaluate(page(), QStringLiteral("document.querySelector(\"%1\").click(); true").arg(selector));
    }

    QPointer<TovuSurveyView> view;
};

// One load, end to end: the spinner, both reports, the console, the state left
// behind, what a person sees, and the close button.
TEST_F(WebSurveyViewTest, HostedPageLoadsAndReportsThroughTheDelegate)
{
    view->loadEmbedSurvey(pageUrl());
    EXPECT_TRUE(view->loader()->isAnimating());
    EXPECT_TRUE(view->loader()->isVisible());

    ASSERT_TRUE(QTest::qWaitFor([&] { return delegate.reports.size() >= 2; }, pageTimeoutMs));
    QTest::qWait(100);
    ASSERT_EQ(delegate.reports.size(), 2u);
    // The page's own message may arrive before or after the load report.
    EXPECT_TRUE(std::ranges::count(delegate.reports, loaded()) == 1);
    EXPECT_TRUE(std::ranges::count(delegate.reports, surveyLoadedMessage()) == 1);
    EXPECT_TRUE(logged(">>> User Response = \n {\"type\":\"surveyLoaded\"}"));
    EXPECT_FALSE(view->loader()->isAnimating());
    EXPECT_FALSE(view->loader()->isVisible());
    EXPECT_TRUE(view->closeButton()->isVisible());
    EXPECT_EQ(view->closeButton()->text(), QStringLiteral("X"));
    EXPECT_EQ(view->closeButton()->geometry(), QRect(view->width() - 40, 10, 30, 30));
    EXPECT_EQ(view->surveyLoaded(), QStringLiteral("surveyLoaded"));
    EXPECT_EQ(view->surveyCompleted(), QStringLiteral("surveyCompleted"));
    EXPECT_EQ(evaluate(page(), QStringLiteral("document.title")).toString().isEmpty(), false);

    QTest::qWait(300); // the compositor's first frame
    const QString shot = QDir::temp().filePath(QStringLiteral("tovukit-web-survey.png"));
    EXPECT_TRUE(host.grab().save(shot));
    std::cout << "screenshot: " << shot.toStdString() << '\n';

    // Close empties the page and hides the button; embedded, the view stays.
    QTest::mouseClick(view->closeButton(), Qt::LeftButton);
    EXPECT_FALSE(view->closeButton()->isVisible());
    EXPECT_TRUE(QTest::qWaitFor(
        [&] { return evaluate(page(), QStringLiteral("document.body.innerHTML")).toString().isEmpty(); },
        pageTimeoutMs));
    EXPECT_TRUE(view->isVisible());
}

// The page's messages: which reach the delegate, and the console line of each.
TEST_F(WebSurveyViewTest, PageMessagesAreCheckedAndNothingElseIsReachable)
{
    ASSERT_NO_FATAL_FAILURE(loadHostedPage());
    delegate.reports.clear();

    struct Case {
        const char *body;
        std::string line; ///< printed for it (a prefix for the long ones)
        bool delivered;
    };
    const std::vector<Case> cases{
        {"{type: 'surveyLoaded', id: 1}", ">>> User Response = \n {\"id\":1,\"type\":\"surveyLoaded\"}", true},
        {"{type: 'surveyCompleted'}", ">>> User Response = \n {\"type\":\"surveyCompleted\"}", false},
        {"{}", ">>> User Response = \n {}", false},
        {"{type: 7}", ">>> User Response = \n {\"type\":7}", false},
        {"'hello'", ">>> Unexpected message body: hello", false},
        {"[1, 'two']", ">>> Unexpected message body: [1,\"two\"]", false},
        {"null", ">>> Unexpected message body: null", false},
        {"undefined", ">>> Unreadable message body: ", false},
        {"(() => { const o = {type: 'surveyLoaded'}; o.self = o; return o; })()",
         ">>> Unreadable message body: ", false},
        {"function () {}", ">>> Unreadable message body: ", false},
        {"{type: 'surveyLoaded', pad: 'x'.repeat(2 * 1024 * 1024)}",
         ">>> Unreadable message body: more than 1048576 characters", false},
        {"JSON.parse('['.repeat(3000) + ']'.repeat(3000))", ">>> Unreadable message body: ", false},
        {"(() => { let v = {}; for (let i = 0; i < 200000; ++i) v = {v}; return v; })()",
         ">>> Unreadable message body: ", false},
    };
    for (const Case &c : cases) {
        SCOPED_TRACE(c.body);
        log.clear();
        const std::size_t before = delegate.reports.size();
        ASSERT_NO_FATAL_FAILURE(post(QString::fromUtf8(c.body)));
        EXPECT_TRUE(std::ranges::any_of(log, [&](const std::string &l) { return l.starts_with(c.line); }))
            << (log.empty() ? std::string("no line") : log.front());
        EXPECT_EQ(delegate.reports.size() - before, c.delivered ? 1u : 0u);
    }
    ASSERT_EQ(delegate.reports.size(), 1u);
    EXPECT_EQ(delegate.reports[0],
              (QVariantMap{{QStringLiteral("type"), QStringLiteral("surveyLoaded")}, {QStringLiteral("id"), 1}}));

    // The page sees one function and cannot replace it; the channel lives in a world it cannot reach.
    const QString probe = QStringLiteral(R"JS(
        (function () {
          const handler = window.webkit.messageHandlers.surveyResponse;
          try { window.webkit = null; } catch (e) {}
          try { handler.postMessage = null; } catch (e) {}
          try { window.webkit.messageHandlers.surveyResponse = null; } catch (e) {}
          return JSON.stringify([typeof qt, typeof QWebChannel, Object.getOwnPropertyNames(handler),
                                 Object.getOwnPropertyNames(window.webkit.messageHandlers),
                                 typeof window.webkit.messageHandlers.surveyResponse.postMessage]);
        })()
    )JS");
    EXPECT_EQ(evaluate(page(), probe).toString(),
              QStringLiteral(R"(["undefined","undefined",["postMessage"],["surveyResponse"],"function"])"));

    // Without a delegate nothing is read, only said.
    view->setSurveyDelegate(nullptr);
    log.clear();
    evaluate(page(),
             QStringLiteral("window.webkit.messageHandlers.surveyResponse.postMessage({type: 'surveyLoaded'})"));
    EXPECT_TRUE(waitForLine(">>> User Delegate nil..."));
    EXPECT_FALSE(std::ranges::any_of(log, [](const std::string &l) { return l.starts_with(">>> User Response"); }));
    EXPECT_EQ(delegate.reports.size(), 1u);
}

// A page that posts while it is still being parsed, before the bridge is
// connected, is heard once it is, in order.
TEST_F(WebSurveyViewTest, MessagesPostedBeforeTheBridgeIsReadyArriveInOrder)
{
    view->surveyWebView()->setHtml(
        QStringLiteral("<html><head><script>"
                       "const h = window.webkit.messageHandlers.surveyResponse;"
                       "h.postMessage({type: 'surveyLoaded', n: 1}); h.postMessage({type: 'surveyLoaded', n: 2});"
                       "</script></head><body>early</body></html>"),
        QUrl(QString::fromStdString(url + "/")));
    ASSERT_TRUE(QTest::qWaitFor([&] { return delegate.reports.size() >= 3; }, pageTimeoutMs));
    std::vector<int> order;
    for (const QVariantMap &report : delegate.reports) {
        if (report.contains(QStringLiteral("n")))
            order.push_back(report.value(QStringLiteral("n")).toInt());
    }
    EXPECT_EQ(order, (std::vector<int>{1, 2}));
}

// Links a person clicks leave for the system browser, web addresses only, and the survey stays.
TEST_F(WebSurveyViewTest, ClickedLinksOpenOutsideAndTheSurveyStays)
{
    ASSERT_NO_FATAL_FAILURE(loadHostedPage());
    evaluate(page(), QStringLiteral(R"JS(
        document.body.insertAdjacentHTML('afterbegin',
          '<p><a id="mail" href="mailto:help@tovu.example">mail</a></p>'); true
    )JS"));
    const QUrl survey = page()->url();

    ASSERT_NO_FATAL_FAILURE(clickElement(QStringLiteral("#powered-by")));
    ASSERT_TRUE(QTest::qWaitFor([&] { return opener.openedUrls().size() == 1; }, pageTimeoutMs));
    ASSERT_NO_FATAL_FAILURE(clickElement(QStringLiteral("#mail")));
    QTest::qWait(300);

    EXPECT_EQ(opener.openedUrls(), std::vector<QUrl>{QUrl(QStringLiteral("https://tovu.example/"))});
    EXPECT_EQ(page()->url(), survey);
    EXPECT_EQ(evaluate(page(), QStringLiteral("!!document.getElementById('survey')")).toBool(), true);
}

// Loads that go nowhere: no address or a bad one keeps the spinner turning; a
// page that cannot be reached is one console line.
TEST_F(WebSurveyViewTest, LoadsThatGoNowhere)
{
    for (const std::optional<QString> &address : {std::optional<QString>(), std::optional(QStringLiteral("not a url")),
                                                  std::optional(QStringLiteral("http://exa mple.com/"))}) {
        TovuSurveyView other(&host);
        other.loadSurvey(address);
        EXPECT_TRUE(other.loader()->isAnimating());
        EXPECT_EQ(other.surveyWebView()->url(), QUrl());
    }
    view->loadSurvey(QStringLiteral("http://127.0.0.1:1/"));
    ASSERT_TRUE(QTest::qWaitFor(
        [&] {
            return std::ranges::any_of(log,
                                       [](const std::string &l) { return l.starts_with("Failed to load web page: "); });
        },
        pageTimeoutMs));
    EXPECT_TRUE(delegate.reports.empty());
}

} // namespace
