#pragma once

#include <QPointer>
#include <QWebEnginePage>

class TovuSurveyViewModel;

/// The page of a web survey view: its navigations are decided by the view
/// model (a clicked link leaves for the system browser, the survey stays),
/// and so are links that ask for a new window.
class TovuSurveyWebPage : public QWebEnginePage
{
    Q_OBJECT

public:
    explicit TovuSurveyWebPage(TovuSurveyViewModel *viewModel, QObject *parent = nullptr);

protected:
    bool acceptNavigationRequest(const QUrl &url, NavigationType type, bool isMainFrame) override;

private:
    QPointer<TovuSurveyViewModel> m_viewModel;
};
