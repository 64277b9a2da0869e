#pragma once

#include <QColor>
#include <QTimer>
#include <QWidget>

/// A spinner: twelve spokes of fading grey that turn while animating, hidden
/// when stopped.
class TovuActivityIndicator : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(bool isAnimating READ isAnimating)

public:
    explicit TovuActivityIndicator(QWidget *parent = nullptr);

    void startAnimating();
    void stopAnimating();
    bool isAnimating() const { return m_timer.isActive(); }

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QTimer m_timer;
    int m_step = 0;
    QColor m_color;
};
