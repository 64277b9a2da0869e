#include <tovukit_io/quick/TovuShadowItem.h>

#include <tovukit_io/graphics/TovuShadow.h>

#include <QPainter>

TovuShadowItem::TovuShadowItem(QQuickItem *parent)
    : QQuickPaintedItem(parent)
{
    connect(this, &TovuShadowItem::lookChanged, this, [this] { update(); });
}

qreal TovuShadowItem::spread() const
{
    return TovuShadow::spread(m_blurRadius);
}

void TovuShadowItem::paint(QPainter *painter)
{
    // The box sits `spread` in from the item's edges, before the offset moved its shadow.
    const qreal margin = spread();
    const QRectF box(margin, margin - m_offsetY, width() - 2 * margin, height() - 2 * margin);
    TovuShadow::paint(*painter, box, m_cornerRadius, QPointF(0, m_offsetY), m_blurRadius, m_color);
}
