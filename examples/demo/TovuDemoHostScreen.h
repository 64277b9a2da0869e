#pragma once

#include <QWidget>

/// The host app's screen, where surveys appear: the home screen of "Fresh
/// Basket", a grocery-delivery app, at phone size. It is what a host passes to
/// the manager as the widget the survey sheet covers.
///
/// Painted in one piece from the application palette, so it follows light
/// and dark; it shows an "Offline" badge in its status bar while the demo is
/// offline.
class TovuDemoHostScreen : public QWidget
{
    Q_OBJECT
public:
    /// The size of a phone screen, in device-independent pixels.
    static constexpr QSize phoneSize{390, 844};

    explicit TovuDemoHostScreen(QWidget *parent = nullptr);

    void setOnline(bool online);
    bool isOnline() const { return m_online; }

    QSize sizeHint() const override { return phoneSize; }

protected:
    void paintEvent(QPaintEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    bool m_online = true;
};
