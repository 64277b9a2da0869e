#include <tovukit_io/viewmodel/TovuMotion.h>

#include <QMutex>
#include <QPointF>
#include <QVariantAnimation>

#include <algorithm>
#include <array>
#include <atomic>
#include <cmath>
#include <cstddef>
#include <limits>
#include <utility>

namespace {

std::atomic<double> durationScaleFactor{1.0};

struct SpringParameters {
    double damping = 1.0;
    double velocity = 0.0;
};

// How fast the slowest part of the motion decays, per animation duration: e^-7 leaves
// about 0.1 % of the distance, which the end correction below removes.
constexpr double settleRate = 7.0;

// The spring's position at time t (0..1) for a unit step, with the remaining offset
// e(t) solving e'' + 2ζω e' + ω² e = 0, e(0) = 1, e'(0) = -velocity.
double springPosition(const SpringParameters &p, double t)
{
    const double zeta = p.damping;
    const double v0 = p.velocity;
    double offset = 0.0;
    if (zeta < 0.999) {
        const double omega = settleRate / zeta;
        const double omegaD = omega * std::sqrt(1.0 - zeta * zeta);
        offset = std::exp(-zeta * omega * t)
            * (std::cos(omegaD * t) + (zeta * omega - v0) / omegaD * std::sin(omegaD * t));
    } else if (zeta <= 1.001) {
        // Critical damping needs a little more rate: the (1 + ωt) factor decays slower.
        const double omega = settleRate + 2.0;
        offset = (1.0 + (omega - v0) * t) * std::exp(-omega * t);
    } else {
        const double root = std::sqrt(zeta * zeta - 1.0);
        const double omega = settleRate / (zeta - root);
        const double slow = -omega * (zeta - root);
        const double fast = -omega * (zeta + root);
        const double cFast = (-v0 - slow) / (fast - slow);
        offset = (1.0 - cFast) * std::exp(slow * t) + cFast * std::exp(fast * t);
    }
    return 1.0 - offset;
}

// A QEasingCurve custom type is a plain function pointer without context, so each
// parameter pair gets one of a fixed set of slot functions. Views use a handful of pairs.
constexpr std::size_t springSlotCount = 32;
std::array<SpringParameters, springSlotCount> springSlots{};
std::size_t springSlotsUsed = 0;
QBasicMutex springSlotsMutex;

template<std::size_t N>
qreal springSlot(qreal progress)
{
    if (progress <= 0.0)
        return 0.0;
    if (progress >= 1.0)
        return 1.0;
    const SpringParameters &p = springSlots[N];
    // Lean the curve so it lands on 1 exactly without a jump at the end.
    return springPosition(p, progress) + progress * (1.0 - springPosition(p, 1.0));
}

template<std::size_t... N>
constexpr std::array<QEasingCurve::EasingFunction, sizeof...(N)> makeSlotFunctions(std::index_sequence<N...>)
{
    return {&springSlot<N>...};
}

constexpr auto springSlotFunctions = makeSlotFunctions(std::make_index_sequence<springSlotCount>{});

double finiteOr(qreal value, double fallback)
{
    return std::isfinite(value) ? static_cast<double>(value) : fallback;
}

} // namespace

void TovuMotion::setDurationScale(qreal scale)
{
    durationScaleFactor.store(std::max(0.0, finiteOr(scale, 0.0)));
}

qreal TovuMotion::durationScale()
{
    return durationScaleFactor.load();
}

int TovuMotion::durationMs(qreal seconds)
{
    const double ms = finiteOr(seconds, 0.0) * durationScaleFactor.load() * 1000.0;
    if (!(ms > 0.0))
        return 0;
    return static_cast<int>(std::lround(std::min(ms, static_cast<double>(std::numeric_limits<int>::max()))));
}

QEasingCurve TovuMotion::spring(qreal dampingRatio, qreal initialVelocity)
{
    const SpringParameters wanted{std::clamp(finiteOr(dampingRatio, 1.0), 0.05, 20.0),
                                  std::clamp(finiteOr(initialVelocity, 0.0), -50.0, 50.0)};
    std::size_t slot = 0;
    {
        QMutexLocker lock(&springSlotsMutex);
        const auto used = springSlots.begin() + static_cast<std::ptrdiff_t>(springSlotsUsed);
        const auto same = std::find_if(springSlots.begin(), used, [&](const SpringParameters &p) {
            return p.damping == wanted.damping && p.velocity == wanted.velocity;
        });
        if (same != used) {
            slot = static_cast<std::size_t>(same - springSlots.begin());
        } else if (springSlotsUsed < springSlotCount) {
            slot = springSlotsUsed++;
            springSlots[slot] = wanted;
        } else {
            // Out of slots: the closest spring already made is near enough.
            const auto closest = std::min_element(springSlots.begin(), springSlots.end(), [&](auto &a, auto &b) {
                return std::hypot(a.damping - wanted.damping, a.velocity - wanted.velocity)
                    < std::hypot(b.damping - wanted.damping, b.velocity - wanted.velocity);
            });
            slot = static_cast<std::size_t>(closest - springSlots.begin());
        }
    }
    QEasingCurve curve;
    curve.setCustomType(springSlotFunctions[slot]);
    return curve;
}

QEasingCurve TovuMotion::easeOut()
{
    QEasingCurve curve(QEasingCurve::BezierSpline);
    curve.addCubicBezierSegment(QPointF(0.0, 0.0), QPointF(0.58, 1.0), QPointF(1.0, 1.0));
    return curve;
}

QVariantAnimation *TovuMotion::animate(QObject *owner, qreal from, qreal to, int durationMs, const QEasingCurve &curve,
                                       std::function<void(qreal)> apply, std::function<void()> done)
{
    if (durationMs <= 0) {
        apply(to);
        if (done)
            done();
        return nullptr;
    }
    auto *animation = new QVariantAnimation(owner);
    animation->setStartValue(from);
    animation->setEndValue(to);
    animation->setDuration(durationMs);
    animation->setEasingCurve(curve);
    QObject::connect(animation, &QVariantAnimation::valueChanged, owner,
                     [apply](const QVariant &value) { apply(value.toReal()); });
    // The last frame need not land on `to` exactly.
    QObject::connect(animation, &QVariantAnimation::finished, owner,
                     [apply = std::move(apply), to, done = std::move(done)] {
                         apply(to);
                         if (done)
                             done();
                     });
    animation->start(QAbstractAnimation::DeleteWhenStopped);
    return animation;
}
