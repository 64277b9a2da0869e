#pragma once

#include <QWidget>

/// A phone's bezel around one screen widget, so the host screen reads as a
/// phone beside the demo's controls.
class TovuDemoPhoneFrame : public QWidget
{
    Q_OBJECT
public:
    static constexpr int bezel = 12;

    /// Takes `screen` as its child.
    explicit TovuDemoPhoneFrame(QWidget *screen, QWidget *parent = nullptr);

protected:
    void paintEvent(QPaintEvent *event) override;
};
