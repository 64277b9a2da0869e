#pragma once

#include <QEasingCurve>

#include <functional>

class QObject;
class QVariantAnimation;

/// One clock for every animation of the kit and the views: durations are given in
/// seconds and scaled by one global factor, so a host can honour reduced motion and
/// tests can make every animation finish at once.
///
/// \code
/// TovuMotion::setDurationScale(0); // reduced motion: jump to the end
/// animation->setDuration(TovuMotion::durationMs(0.35));
/// animation->setEasingCurve(TovuMotion::spring(0.8, 1.2));
/// \endcode
class TovuMotion
{
public:
    /// The factor applied to every duration; 0 finishes animations at once. Negative or
    /// non-finite values count as 0.
    static void setDurationScale(qreal scale);
    /// The current factor; 1.0 unless a host changed it.
    static qreal durationScale();
    /// `seconds` times the scale, rounded to milliseconds; never negative.
    static int durationMs(qreal seconds);

    /// A damped spring from 0 to 1 over the animation's duration. `dampingRatio` below 1
    /// overshoots (0.5 by about 16 %), 1 and above settle without overshoot;
    /// `initialVelocity` is in distances per animation duration. The curve ends exactly at 1.
    static QEasingCurve spring(qreal dampingRatio, qreal initialVelocity);
    /// The platform's ease-out curve: a cubic Bézier through (0.58, 1).
    static QEasingCurve easeOut();

    /// Runs `apply` with values from `from` to `to` over `durationMs` (already scaled)
    /// along `curve`, then `done`; both at once, and no animation, when the duration is
    /// not positive. The animation belongs to `owner` and ends with it. Returns the
    /// running animation, or null when it ended at once.
    static QVariantAnimation *animate(QObject *owner, qreal from, qreal to, int durationMs, const QEasingCurve &curve,
                                      std::function<void(qreal)> apply, std::function<void()> done = {});

    TovuMotion() = delete;
};
