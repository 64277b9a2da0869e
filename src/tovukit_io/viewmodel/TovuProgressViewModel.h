#pragma once

#include <QObject>
#include <QString>

/// Where the respondent is in the survey, for the sheet's progress indicator: question
/// `current` of `total`, counting question pages only. Shown only while `total` is above
/// zero, so the intro and thank-you pages (and hosts that leave progress off) show none.
///
/// \code
/// TovuProgressViewModel progress;
/// progress.setProgress(3, 7);   // text() "3 of 7", accessibleName() "Question 3 of 7"
/// progress.setProgress(0, 0);   // hidden
/// // QML: Text { text: progress.text; visible: progress.shown }
/// \endcode
class TovuProgressViewModel : public QObject
{
    Q_OBJECT
    Q_PROPERTY(bool shown READ isShown NOTIFY changed)
    Q_PROPERTY(int current READ current NOTIFY changed)
    Q_PROPERTY(int total READ total NOTIFY changed)
    /// The share of the bar that is filled, 0 to 1.
    Q_PROPERTY(qreal fraction READ fraction NOTIFY changed)
    /// "3 of 7", as the indicator shows it.
    Q_PROPERTY(QString text READ text NOTIFY changed)
    /// "Question 3 of 7", as a screen reader says it.
    Q_PROPERTY(QString accessibleName READ accessibleName NOTIFY changed)

public:
    explicit TovuProgressViewModel(QObject *parent = nullptr);

    bool isShown() const { return m_total > 0; }
    int current() const { return m_current; }
    int total() const { return m_total; }
    qreal fraction() const;
    QString text() const;
    QString accessibleName() const;

    /// Question `current` of `total`; a `total` of 0 hides the indicator.
    void setProgress(int current, int total);

Q_SIGNALS:
    void changed();

private:
    int m_current = 0;
    int m_total = 0;
};
