#include <tovukit_io/web/TovuSurveyWebPage.h>

#include <tovukit_io/web/TovuSurveyViewModel.h>

#include <QWebEngineNewWindowRequest>

TovuSurveyWebPage::TovuSurveyWebPage(TovuSurveyViewModel *viewModel, QObject *parent)
    : QWebEnginePage(parent)
    , m_viewModel(viewModel)
{
    // A link with a target of its own asks for a window instead of navigating;
    // it is a clicked link all the same. No window is ever made for the page.
    connect(this, &QWebEnginePage::newWindowRequested, this, [this](QWebEngineNewWindowRequest &request) {
        if (m_viewModel && request.isUserInitiated())
            m_viewModel->acceptNavigation(request.requestedUrl(), true);
    });
}

bool TovuSurveyWebPage::acceptNavigationRequest(const QUrl &url, NavigationType type, bool isMainFrame)
{
    Q_UNUSED(isMainFrame)
    if (!m_viewModel)
        return true;
    return m_viewModel->acceptNavigation(url, type == NavigationTypeLinkClicked);
}
