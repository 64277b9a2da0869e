#include "TovuKitAnimator.h"

#include <tovukit_io/viewmodel/TovuMotion.h>

#include <QPointF>

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

TovuKitAnimator::TovuKitAnimator(QObject *owner, std::function<void(qreal)> apply)
    : m_animation(new QVariantAnimation(owner))
    , m_apply(std::move(apply))
{
    // Progress runs linearly over the legs; each leg eases on its own.
    m_animation->setEasingCurve(QEasingCurve::Linear);
    QObject::connect(m_animation, &QVariantAnimation::valueChanged, m_animation,
                     [this](const QVariant &value) { applyProgress(value.toReal()); });
    QObject::connect(m_animation, &QAbstractAnimation::finished, m_animation, [this] {
        if (!m_stops.isEmpty())
            m_apply(m_stops.constLast());
    });
}

TovuKitAnimator::~TovuKitAnimator()
{
    // The animation may outlive this object by a moment (its owner deletes it later); it
    // must not call back into it.
    if (m_animation) {
        m_animation->stop();
        QObject::disconnect(m_animation, nullptr, m_animation, nullptr);
    }
}

void TovuKitAnimator::run(const QList<qreal> &stops, qreal seconds, const QEasingCurve &curve)
{
    if (!m_animation || stops.isEmpty())
        return;
    m_animation->stop();
    m_stops = stops;
    m_curve = curve;
    const int legs = static_cast<int>(stops.size()) - 1;
    const int legMs = TovuMotion::durationMs(seconds);
    if (legs < 1 || legMs == 0) {
        m_apply(stops.constLast());
        return;
    }
    m_animation->setStartValue(0.0);
    m_animation->setEndValue(static_cast<qreal>(legs));
    m_animation->setDuration(legMs > std::numeric_limits<int>::max() / legs ? std::numeric_limits<int>::max()
                                                                            : legMs * legs);
    m_apply(stops.constFirst());
    m_animation->start();
}

void TovuKitAnimator::stop()
{
    if (m_animation)
        m_animation->stop();
}

bool TovuKitAnimator::isRunning() const
{
    return m_animation && m_animation->state() == QAbstractAnimation::Running;
}

QVariantAnimation *TovuKitAnimator::animation() const
{
    return m_animation;
}

QEasingCurve TovuKitAnimator::easeInOut()
{
    QEasingCurve curve(QEasingCurve::BezierSpline);
    curve.addCubicBezierSegment(QPointF(0.42, 0.0), QPointF(0.58, 1.0), QPointF(1.0, 1.0));
    return curve;
}

void TovuKitAnimator::applyProgress(qreal progress)
{
    const qsizetype legs = m_stops.size() - 1;
    if (legs < 1)
        return;
    const qsizetype leg = std::clamp<qsizetype>(static_cast<qsizetype>(std::floor(progress)), 0, legs - 1);
    const qreal t = std::clamp<qreal>(progress - static_cast<qreal>(leg), 0, 1);
    const qreal from = m_stops.at(leg);
    const qreal to = m_stops.at(leg + 1);
    m_apply(t >= 1 ? to : from + (to - from) * m_curve.valueForProgress(t));
}
