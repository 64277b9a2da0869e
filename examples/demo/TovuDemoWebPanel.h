#pragma once

#include <tovukit_io/web/TovuSurveyDelegate.h>
#include <tovukit_io/web/TovuSurveyView.h>

#include <QGroupBox>
#include <QPointer>

#include <functional>

class QLabel;
class QPushButton;
class TovuDemoActivityPane;
class TovuDemoBackend;

/// The web path beside the native one: the backend's hosted page for the
/// chosen survey embedded in the host screen, full screen over the window,
/// full screen after three visits, and the sample with the fewest responses.
/// What the page reports through the bridge goes to the activity log.
class TovuDemoWebPanel : public QGroupBox, public TovuSurveyDelegate
{
    Q_OBJECT
public:
    static constexpr int visitsBeforeShowing = 3;

    /// `surveyId` gives the id of the survey chosen in the demo's controls.
    TovuDemoWebPanel(TovuDemoBackend &backend, QWidget *hostScreen, TovuDemoActivityPane *activity,
                     std::function<QString()> surveyId, QWidget *parent = nullptr);

    void handleSurveyLoaded(const QVariantMap &response) override;

    QPushButton *embeddedButton() const { return m_embedded; }
    QPushButton *fullScreenButton() const { return m_fullScreen; }
    QPushButton *afterVisitsButton() const { return m_afterVisits; }
    QPushButton *lowestButton() const { return m_lowest; }
    TovuSurveyView *embeddedView() const { return m_embeddedView; }

private:
    QString pageUrl() const;
    void toggleEmbedded();
    void countVisit();
    void showVisits();
    void note(const QString &text);

    TovuDemoBackend &m_backend;
    QWidget *m_hostScreen;
    TovuDemoActivityPane *m_activity;
    std::function<QString()> m_surveyId;
    QPointer<TovuSurveyView> m_embeddedView;

    QPushButton *m_embedded = nullptr;
    QPushButton *m_fullScreen = nullptr;
    QPushButton *m_afterVisits = nullptr;
    QPushButton *m_lowest = nullptr;
    QLabel *m_visits = nullptr;
};
