#pragma once

#include <tovukit_io/viewmodel/TovuProgressViewModel.h>

#include <QPointer>
#include <QQuickItem>
#include <QtQml/qqmlregistration.h>

/// What a screen reader finds of the sheet's progress indicator in Qt Quick (the QML
/// look draws the bar and the text inside it): a progress bar named "Question 3 of 7"
/// whose value is the question's number out of the total, announced on each change.
/// Mark it accessible in QML (`Accessible.role: Accessible.ProgressBar`) so the tree
/// reaches it.
class TovuProgressItem : public QQuickItem
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(TovuProgressViewModel *progress READ progress WRITE setProgress NOTIFY progressChanged)

public:
    explicit TovuProgressItem(QQuickItem *parent = nullptr);

    TovuProgressViewModel *progress() const { return m_progress; }
    void setProgress(TovuProgressViewModel *progress);

Q_SIGNALS:
    void progressChanged();

private:
    void announce();

    QPointer<TovuProgressViewModel> m_progress;
    QMetaObject::Connection m_connection;
};
