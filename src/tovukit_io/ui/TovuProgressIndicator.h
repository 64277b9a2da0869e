#pragma once

#include <QWidget>

class TovuProgressViewModel;

/// The sheet's progress indicator in Qt Widgets: a thin bar in the theme's primary colour
/// on a track in the handle's grey, then "3 of 7", in a box of TovuSheetMetrics::progressWidth by
/// progressHeight. A screen reader finds a progress bar named "Question 3 of 7" whose
/// value is the question's number, and hears each change.
class TovuProgressIndicator : public QWidget
{
    Q_OBJECT

public:
    /// Shows `progress`, which must outlive the indicator.
    explicit TovuProgressIndicator(TovuProgressViewModel *progress, QWidget *parent = nullptr);

    TovuProgressViewModel *viewModel() const { return m_progress; }

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    void progressChanged();

    TovuProgressViewModel *m_progress;
};
