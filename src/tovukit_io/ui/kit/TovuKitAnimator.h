#pragma once

// The one way the kit's widgets animate a number; not installed.

#include <QEasingCurve>
#include <QList>
#include <QPointer>
#include <QVariantAnimation>

#include <functional>

class QObject;

/// Animates a value through a list of stops, one leg per pair, each leg `seconds` long
/// (scaled by TovuMotion) with `curve`, and hands every value to `apply`. With motion off
/// `apply` gets the last stop at once. The last stop is always applied exactly, so a
/// scale that returns to 1 ends on 1, not on 0.9999.
class TovuKitAnimator
{
public:
    /// The animation is a child of `owner`, which must outlive this animator or own it.
    TovuKitAnimator(QObject *owner, std::function<void(qreal)> apply);
    ~TovuKitAnimator();
    TovuKitAnimator(const TovuKitAnimator &) = delete;
    TovuKitAnimator &operator=(const TovuKitAnimator &) = delete;

    void run(const QList<qreal> &stops, qreal seconds, const QEasingCurve &curve);
    void stop();
    bool isRunning() const;
    /// For a caller that needs to know when a run ends on its own.
    QVariantAnimation *animation() const;

    /// The platform's default curve for view animations: a cubic Bézier (0.42, 0) (0.58, 1).
    static QEasingCurve easeInOut();

private:
    void applyProgress(qreal progress);

    QPointer<QVariantAnimation> m_animation;
    std::function<void(qreal)> m_apply;
    QList<qreal> m_stops;
    QEasingCurve m_curve;
};
