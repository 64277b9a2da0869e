#include <tovukit_io/ui/kit/TovuShake.h>

#include <tovukit_io/viewmodel/TovuMotion.h>
#include <tovukit_io/viewmodel/TovuPageMetrics.h>

#include "TovuKitAnimator.h"

#include <QGraphicsEffect>
#include <QPainter>
#include <QPointer>
#include <QVariantAnimation>
#include <QWidget>

#include <cmath>

namespace {

constexpr qreal distance = TovuPageMetrics::shakeDistance;
constexpr qreal legSeconds = TovuPageMetrics::shakeSeconds;

// Draws the widget (and its children) moved sideways by the current offset.
class ShakeEffect : public QGraphicsEffect
{
public:
    explicit ShakeEffect(QWidget *widget)
        : QGraphicsEffect(widget)
        , m_widget(widget)
        , m_animator(this, [this](qreal offset) { setOffset(offset); })
    {
        // Removing the effect deletes it and its animation, which must not happen while
        // the animation is still signalling.
        connect(m_animator.animation(), &QAbstractAnimation::finished, this, &ShakeEffect::remove,
                Qt::QueuedConnection);
    }

    qreal offset() const { return m_offset; }

    void start() { m_animator.run({m_offset, -distance, 0.0}, legSeconds, TovuKitAnimator::easeInOut()); }

    QRectF boundingRectFor(const QRectF &rect) const override { return rect.adjusted(-distance - 1, 0, 1, 0); }

protected:
    void draw(QPainter *painter) override
    {
        if (m_offset == 0) {
            drawSource(painter);
            return;
        }
        // The source as a picture, drawn moved: children included, as Qt's own effects do.
        QPoint origin;
        const QPixmap pixmap = sourcePixmap(Qt::LogicalCoordinates, &origin);
        painter->drawPixmap(QPointF(origin) + QPointF(m_offset, 0), pixmap);
    }

private:
    void setOffset(qreal offset)
    {
        m_offset = offset;
        update();
    }

    void remove()
    {
        if (m_widget && !m_animator.isRunning() && m_widget->graphicsEffect() == this)
            m_widget->setGraphicsEffect(nullptr); // deletes this
    }

    QPointer<QWidget> m_widget;
    TovuKitAnimator m_animator;
    qreal m_offset = 0;
};

} // namespace

void TovuShake::shake(QWidget *widget)
{
    if (!widget || TovuMotion::durationMs(legSeconds) == 0)
        return;
    auto *effect = dynamic_cast<ShakeEffect *>(widget->graphicsEffect());
    if (!effect) {
        if (widget->graphicsEffect())
            return; // someone else's effect: never replace it
        effect = new ShakeEffect(widget);
        widget->setGraphicsEffect(effect);
    }
    effect->start();
}

qreal TovuShake::offset(const QWidget *widget)
{
    if (!widget)
        return 0;
    const auto *effect = dynamic_cast<const ShakeEffect *>(widget->graphicsEffect());
    return effect ? effect->offset() : 0;
}
