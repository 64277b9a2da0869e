#pragma once

#include "TovuDemoBackend.h"
#include "TovuDemoOptions.h"
#include "TovuDemoSession.h"

#include <QColor>
#include <QTimer>
#include <QWidget>

#include <vector>

class QButtonGroup;
class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QRadioButton;

/// The demo's controls: which survey (a sample by collector id or survey id,
/// or any id typed in), how to show it (now, as an intercept after 3 s, or
/// the sample with the fewest responses), its look (light or dark, the host
/// theme or a primary colour), and the network (online or offline, flushing
/// the queue, how many responses wait in it).
///
/// It only reports what the user asks for; the window does it.
class TovuDemoControlPanel : public QWidget
{
    Q_OBJECT
public:
    static constexpr int interceptSeconds = 3;

    explicit TovuDemoControlPanel(const std::vector<TovuDemoSample> &samples, QWidget *parent = nullptr);

    /// Shows `id` as configured, choosing its sample when it is one; reports nothing.
    void setTarget(TovuDemoSession::Target target, const QString &id);
    /// Shows the look; reports nothing. `primaryColor` is the one offered as a theme.
    void setLook(bool dark, TovuDemoOptions::Theme theme, const QColor &primaryColor);
    /// Shows whether the sheet shows progress; reports nothing.
    void setShowsProgress(bool shows);
    void setOnline(bool online);
    void setQueuedCount(int count);
    /// Counts down from interceptSeconds until the survey shows or stopCountdown().
    void startCountdown();
    void stopCountdown();

    QPushButton *showNowButton() const { return m_showNow; }
    QPushButton *interceptButton() const { return m_intercept; }
    QPushButton *lowestButton() const { return m_lowest; }
    QPushButton *onlineButton() const { return m_online; }
    QPushButton *flushButton() const { return m_flush; }
    QLabel *queueLabel() const { return m_queue; }

Q_SIGNALS:
    void targetChosen(TovuDemoSession::Target target, const QString &id);
    void showNowRequested();
    void interceptRequested();
    void lowestResponseRequested();
    void lookChanged(bool dark, TovuDemoOptions::Theme theme);
    void progressToggled(bool shows);
    void onlineRequested(bool online);
    void flushRequested();

private:
    QWidget *surveyGroup();
    QWidget *showGroup();
    QWidget *lookGroup();
    QWidget *networkGroup();
    TovuDemoSession::Target chosenTarget() const;
    void sampleOrKindChanged();
    void emitLook();
    void tick();

    std::vector<TovuDemoSample> m_samples;
    bool m_quiet = false;

    QComboBox *m_sample = nullptr;
    QButtonGroup *m_kind = nullptr;
    QRadioButton *m_byCollector = nullptr;
    QRadioButton *m_bySurvey = nullptr;
    QLineEdit *m_id = nullptr;
    QPushButton *m_configure = nullptr;

    QPushButton *m_showNow = nullptr;
    QPushButton *m_intercept = nullptr;
    QPushButton *m_lowest = nullptr;
    QLabel *m_countdownLabel = nullptr;
    QTimer m_countdown;
    int m_secondsLeft = 0;

    QRadioButton *m_light = nullptr;
    QRadioButton *m_dark = nullptr;
    QComboBox *m_theme = nullptr;
    QCheckBox *m_progress = nullptr;

    QPushButton *m_online = nullptr;
    QLabel *m_onlineLabel = nullptr;
    QPushButton *m_flush = nullptr;
    QLabel *m_queue = nullptr;
};
