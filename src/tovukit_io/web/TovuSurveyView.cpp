#include <tovukit_io/web/TovuSurveyView.h>

#include <tovukit_io/model/TovuLog.h>
#include <tovukit_io/platform/TovuKeyValueStore.h>
#include <tovukit_io/web/TovuActivityIndicator.h>
#include <tovukit_io/web/TovuLowestResponseRequest.h>
#include <tovukit_io/web/TovuSurveyDelegate.h>
#include <tovukit_io/web/TovuSurveyViewController.h>
#include <tovukit_io/web/TovuSurveyViewModel.h>
#include <tovukit_io/web/TovuSurveyWebPage.h>
#include <tovukit_io/web/TovuUserContentController.h>
#include <tovukit_io/web/UserDefaultsHelper.h>

#include <QCoreApplication>
#include <QPointer>
#include <QPushButton>
#include <QWebEngineLoadingInfo>
#include <QWebEngineView>

namespace {

constexpr int closeButtonSide = 30;
constexpr int closeButtonInset = 10;
constexpr int closeButtonFontPixels = 20;

// The page preWarmSurvey() keeps so the engine stays started. Deleted before the
// application object goes, as the engine requires of every page.
QPointer<QWebEnginePage> preWarmedPage;

void releasePreWarmedPage()
{
    delete preWarmedPage.data();
}

// A delegate that is a QObject is dropped once it is destroyed; any other is
// trusted to outlive the call, as the delegate contract says.
class DelegateGuard
{
public:
    explicit DelegateGuard(TovuSurveyDelegate *delegate)
        : m_delegate(delegate)
        , m_object(dynamic_cast<QObject *>(delegate))
        , m_isObject(m_object != nullptr)
    { }

    TovuSurveyDelegate *get() const { return m_isObject && !m_object ? nullptr : m_delegate; }

private:
    TovuSurveyDelegate *m_delegate;
    QPointer<QObject> m_object;
    bool m_isObject;
};

void print(const std::string &line)
{
    TovuLog::print(line);
}

} // namespace

TovuSurveyView::TovuSurveyView(QWidget *parent)
    : QWidget(parent)
    , m_viewModel(new TovuSurveyViewModel(this))
    , m_surveyWebView(new QWebEngineView(this))
    , m_surveyResponseHandler(new TovuUserContentController(
          [model = QPointer(m_viewModel)](const QString &body) {
              if (model)
                  model->receiveScriptMessage(body);
          },
          this))
    , m_loader(new TovuActivityIndicator(this))
    , m_closeButton(new QPushButton(QStringLiteral("X"), this))
{
    auto *page = new TovuSurveyWebPage(m_viewModel, m_surveyWebView);
    m_surveyResponseHandler->attach(page);
    m_surveyWebView->setPage(page);
    m_surveyWebView->setObjectName(QStringLiteral("surveyWebView"));

    connect(page, &QWebEnginePage::loadingChanged, m_viewModel, [this](const QWebEngineLoadingInfo &info) {
        if (info.status() == QWebEngineLoadingInfo::LoadSucceededStatus)
            m_viewModel->pageFinished();
        else if (info.status() == QWebEngineLoadingInfo::LoadFailedStatus)
            m_viewModel->pageFailed(info.errorString());
    });
    connect(m_viewModel, &TovuSurveyViewModel::loadTimedOut, m_surveyWebView, &QWebEngineView::stop);
    connect(m_viewModel, &TovuSurveyViewModel::loadingChanged, this, [this] {
        if (m_viewModel->isLoading())
            m_loader->startAnimating();
        else
            m_loader->stopAnimating();
    });
    connect(m_viewModel, &TovuSurveyViewModel::closeButtonVisibleChanged, this,
            [this] { m_closeButton->setVisible(m_viewModel->isCloseButtonVisible()); });
    connect(m_viewModel, &TovuSurveyViewModel::closeRequested, this, [this] {
        m_surveyWebView->setHtml(QStringLiteral("<html><body></body></html>"));
        for (QWidget *ancestor = parentWidget(); ancestor; ancestor = ancestor->parentWidget()) {
            if (auto *controller = qobject_cast<TovuSurveyViewController *>(ancestor)) {
                controller->dismiss(true);
                return;
            }
        }
    });

    m_closeButton->setObjectName(QStringLiteral("closeButton"));
    m_closeButton->setAccessibleName(tr("Close survey"));
    m_closeButton->setFlat(true);
    m_closeButton->setCursor(Qt::PointingHandCursor);
    QFont font = m_closeButton->font();
    font.setPixelSize(closeButtonFontPixels);
    m_closeButton->setFont(font);
    QPalette palette = m_closeButton->palette();
    palette.setColor(QPalette::ButtonText, Qt::black);
    m_closeButton->setPalette(palette);
    m_closeButton->setFixedSize(closeButtonSide, closeButtonSide);
    connect(m_closeButton, &QPushButton::clicked, this, &TovuSurveyView::closeButtonTapped);

    m_loader->setObjectName(QStringLiteral("loader"));
    placeOverlays();
}

TovuSurveyView::~TovuSurveyView()
{
    // The page goes before its view, and the view model (which the page asks)
    // outlives both.
    delete m_surveyWebView;
}

QString TovuSurveyView::surveyLoaded() const
{
    return m_viewModel->surveyLoaded();
}

QString TovuSurveyView::surveyCompleted() const
{
    return m_viewModel->surveyCompleted();
}

bool TovuSurveyView::getSurveyLoadedResponse() const
{
    return m_viewModel->getSurveyLoadedResponse();
}

void TovuSurveyView::setGetSurveyLoadedResponse(bool value)
{
    m_viewModel->setGetSurveyLoadedResponse(value);
}

TovuSurveyDelegate *TovuSurveyView::surveyDelegate() const
{
    return m_viewModel->surveyDelegate();
}

void TovuSurveyView::setSurveyDelegate(TovuSurveyDelegate *delegate)
{
    m_viewModel->setSurveyDelegate(delegate);
}

void TovuSurveyView::loadSurvey(const std::optional<QString> &surveyURL)
{
    load(surveyURL);
}

void TovuSurveyView::loadEmbedSurvey(const std::optional<QString> &surveyURL)
{
    load(surveyURL);
}

void TovuSurveyView::load(const std::optional<QString> &surveyURL)
{
    const QUrl url = m_viewModel->beginLoad(surveyURL.value_or(QString()));
    if (!url.isEmpty())
        m_surveyWebView->load(url);
}

void TovuSurveyView::closeButtonTapped()
{
    m_viewModel->closeTapped();
}

void TovuSurveyView::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    placeOverlays();
}

void TovuSurveyView::placeOverlays()
{
    m_surveyWebView->setGeometry(rect());
    const QRect safe = contentsRect();
    const int x = layoutDirection() == Qt::RightToLeft ? safe.left() + closeButtonInset
                                                       : safe.right() + 1 - closeButtonInset - closeButtonSide;
    m_closeButton->move(x, safe.top() + closeButtonInset);
    m_loader->move(rect().center() - m_loader->rect().center());
    m_loader->raise();
    m_closeButton->raise();
}

void TovuSurveyView::preWarmSurvey()
{
    static bool warmed = false;
    if (warmed || !QCoreApplication::instance())
        return;
    warmed = true;
    preWarmedPage = new QWebEnginePage(QCoreApplication::instance());
    preWarmedPage->setHtml(QStringLiteral("<html></html>"));
    QObject::connect(QCoreApplication::instance(), &QCoreApplication::aboutToQuit, releasePreWarmedPage);
    // Hosts that never run exec() still tear the application down: post routines
    // run before its children are deleted.
    qAddPostRoutine(releasePreWarmedPage);
}

TovuSurveyViewController *TovuSurveyView::loadFullscreenSurvey(QWidget *parent, TovuSurveyDelegate *delegate,
                                                               const std::optional<QString> &surveyURL)
{
    if (!parent) {
        print(">>> No parent view to present the survey from");
        return nullptr;
    }
    auto *controller = new TovuSurveyViewController;
    controller->setSurveyUrl(surveyURL);
    controller->setGetSurveyLoadedResponse(true);
    controller->setSurveyDelegate(delegate);
    controller->present(parent, true);
    return controller;
}

void TovuSurveyView::loadSurveyAfter(int numberOfVisits, QWidget *parent, TovuSurveyDelegate *delegate,
                                     const std::optional<QString> &surveyURL)
{
    if (!surveyURL)
        return;
    const std::string key = "Visits:" + surveyURL->toStdString();
    TovuKeyValueStore &store = UserDefaultsHelper::store();
    const std::optional<std::int64_t> visits = store.integer(key);
    if (visits == numberOfVisits) {
        store.removeValue(key);
        loadFullscreenSurvey(parent, delegate, surveyURL);
        return;
    }
    UserDefaultsHelper::set(visits ? *visits + 1 : 1, key);
}

void TovuSurveyView::loadLowestResponseSurvey(std::vector<std::string> from, const std::optional<std::string> &apiKey,
                                              QWidget *parent, TovuSurveyDelegate *delegate)
{
    TovuLowestResponseRequest::fetchAndShow(std::move(from), apiKey, parent,
                                            [parent, guard = DelegateGuard(delegate)](const QString &url) {
                                                loadFullscreenSurvey(parent, guard.get(), url);
                                            });
}
