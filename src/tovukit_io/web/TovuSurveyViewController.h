#pragma once

#include <tovukit_io/web/TovuSurveyDelegate.h>

#include <QPointer>
#include <QWidget>

#include <optional>

class QVariantAnimation;
class TovuSurveyView;

/// A web survey over the whole of a host window: the window stays underneath,
/// the survey covers it and follows its size until dismissed.
///
/// \code
/// auto *controller = new TovuSurveyViewController;
/// controller->setSurveyUrl(QStringLiteral("https://…/web/1234"));
/// controller->setSurveyDelegate(this);
/// controller->present(this, true);
/// \endcode
///
/// Load reports of its TovuSurveyView pass through handleSurveyLoaded() to the
/// host's delegate, unchanged. Dismissing it deletes it.
class TovuSurveyViewController : public QWidget, public TovuSurveyDelegate
{
    Q_OBJECT

public:
    explicit TovuSurveyViewController(QWidget *parent = nullptr);
    ~TovuSurveyViewController() override;

    TovuSurveyDelegate *surveyDelegate() const { return m_surveyDelegate; }
    /// Not owned; nullptr: the survey loads and shows but reports nothing.
    void setSurveyDelegate(TovuSurveyDelegate *delegate) { m_surveyDelegate = delegate; }
    bool getSurveyLoadedResponse() const { return m_getSurveyLoadedResponse; }
    void setGetSurveyLoadedResponse(bool value) { m_getSurveyLoadedResponse = value; }
    std::optional<QString> surveyUrl() const { return m_surveyUrl; }
    void setSurveyUrl(std::optional<QString> url) { m_surveyUrl = std::move(url); }
    /// Kept for hosts; the controller itself never reads it.
    double thankyouTimeout() const { return m_thankyouTimeout; }
    void setThankyouTimeout(double seconds) { m_thankyouTimeout = seconds; }

    /// The survey view, made when the controller is first presented.
    TovuSurveyView *surveyView() const { return m_surveyView; }
    bool isPresented() const { return m_presented; }

    /// Covers `host`'s window, builds the survey view and starts its load.
    void present(QWidget *host, bool animated);
    /// Leaves the screen and deletes the controller.
    void dismiss(bool animated);

    void handleSurveyLoaded(const QVariantMap &response) override;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void viewDidLoad();
    void slide(int fromY, int toY, bool animated, std::function<void()> done);

    TovuSurveyDelegate *m_surveyDelegate = nullptr;
    bool m_getSurveyLoadedResponse = false;
    std::optional<QString> m_surveyUrl;
    double m_thankyouTimeout = 3.0;

    TovuSurveyView *m_surveyView = nullptr;
    QPointer<QWidget> m_host;
    QPointer<QVariantAnimation> m_slide;
    bool m_presented = false;
};
