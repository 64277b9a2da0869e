#pragma once

#include <QString>
#include <QWidget>

#include <optional>
#include <string>
#include <vector>

class QPushButton;
class QWebEngineView;
class TovuActivityIndicator;
class TovuSurveyDelegate;
class TovuSurveyViewController;
class TovuSurveyViewModel;
class TovuUserContentController;

/// A hosted survey page in a web view: a spinner until the page has loaded, a
/// close button, and the page's "surveyResponse" messages reported to a
/// TovuSurveyDelegate.
///
/// Embedded in a host's layout:
/// \code
/// auto *survey = new TovuSurveyView(this);
/// survey->setSurveyDelegate(this);
/// layout->addWidget(survey);
/// survey->loadEmbedSurvey(QStringLiteral("https://…/web/1234"));
/// \endcode
/// Or through the class operations: full screen at once, after a number of
/// visits, or the survey with the fewest responses:
/// \code
/// TovuSurveyView::preWarmSurvey();                       // early, e.g. at start-up
/// TovuSurveyView::loadSurveyAfter(3, window(), this, url); // the fourth call shows it
/// \endcode
///
/// Everything runs on the GUI thread. The page reaches nothing native but
/// `window.webkit.messageHandlers.surveyResponse.postMessage(body)`; links the
/// user clicks open in the system browser (http and https only) and the survey stays.
class TovuSurveyView : public QWidget
{
    Q_OBJECT

public:
    explicit TovuSurveyView(QWidget *parent = nullptr);
    ~TovuSurveyView() override;

    QWebEngineView *surveyWebView() const { return m_surveyWebView; }
    TovuUserContentController *surveyResponseHandler() const { return m_surveyResponseHandler; }
    TovuActivityIndicator *loader() const { return m_loader; }
    QPushButton *closeButton() const { return m_closeButton; }
    /// The state and decisions behind the widgets.
    TovuSurveyViewModel *viewModel() const { return m_viewModel; }

    QString surveyLoaded() const;
    QString surveyCompleted() const;
    bool getSurveyLoadedResponse() const;
    void setGetSurveyLoadedResponse(bool value);
    TovuSurveyDelegate *surveyDelegate() const;
    /// Not owned; nullptr disables every report.
    void setSurveyDelegate(TovuSurveyDelegate *delegate);

    /// Starts the spinner and loads the page (60 s at most). An absent or
    /// invalid address loads nothing and the spinner keeps turning.
    void loadSurvey(const std::optional<QString> &surveyURL);
    /// The same load, for a view the host placed in its own layout.
    void loadEmbedSurvey(const std::optional<QString> &surveyURL);
    /// The close button's action: empties the page, hides the button and
    /// dismisses the TovuSurveyViewController the view is in, if any.
    void closeButtonTapped();

    /// Starts the web engine before the first survey; later calls do nothing.
    static void preWarmSurvey();
    /// Shows the survey full screen over `parent`'s window. Returns the
    /// controller (owned by that window), or nullptr without a parent.
    static TovuSurveyViewController *loadFullscreenSurvey(QWidget *parent, TovuSurveyDelegate *delegate,
                                                          const std::optional<QString> &surveyURL);
    /// Counts the calls for one survey address under "Visits:" + address and
    /// shows the survey full screen at the call after the `numberOfVisits`-th,
    /// then counts again from the start. 0 never shows it.
    static void loadSurveyAfter(int numberOfVisits, QWidget *parent, TovuSurveyDelegate *delegate,
                                const std::optional<QString> &surveyURL);
    /// Asks the backend which of `from` has the fewest responses and shows that
    /// survey full screen. Failures are printed; nothing is shown then, nor when
    /// `parent` is gone by the time the answer comes.
    static void loadLowestResponseSurvey(std::vector<std::string> from, const std::optional<std::string> &apiKey,
                                         QWidget *parent, TovuSurveyDelegate *delegate);

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    void load(const std::optional<QString> &surveyURL);
    void placeOverlays();

    TovuSurveyViewModel *m_viewModel;
    QWebEngineView *m_surveyWebView;
    TovuUserContentController *m_surveyResponseHandler;
    TovuActivityIndicator *m_loader;
    QPushButton *m_closeButton;
};
