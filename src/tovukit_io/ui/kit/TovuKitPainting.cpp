#include "TovuKitPainting.h"

#include <QPainter>
#include <QPen>

#include <algorithm>
#include <cmath>

namespace TovuKitPainting {

qreal effectiveRadius(const QSizeF &size, qreal radius)
{
    if (!(radius > 0))
        return 0;
    return std::min(radius, std::min(size.width(), size.height()) / 2);
}

QPainterPath roundedRect(const QRectF &rect, qreal radius)
{
    QPainterPath path;
    const qreal r = effectiveRadius(rect.size(), radius);
    if (r > 0)
        path.addRoundedRect(rect, r, r);
    else
        path.addRect(rect);
    return path;
}

void paintBox(QPainter &painter, const QRectF &rect, const QColor &background, const QColor &border, qreal borderWidth,
              qreal radius)
{
    if (rect.isEmpty())
        return;
    const qreal r = effectiveRadius(rect.size(), radius);
    if (background.alpha() > 0)
        painter.fillPath(roundedRect(rect, r), background);
    const qreal width = std::min(borderWidth, std::min(rect.width(), rect.height()) / 2);
    if (width > 0 && border.alpha() > 0) {
        const qreal half = width / 2;
        QPen pen(border, width);
        pen.setJoinStyle(Qt::MiterJoin);
        painter.strokePath(roundedRect(rect.adjusted(half, half, -half, -half), std::max<qreal>(0, r - half)), pen);
    }
}

QRegion roundedRegion(const QSize &size, qreal radius)
{
    const qreal r = effectiveRadius(QSizeF(size), radius);
    if (size.isEmpty())
        return {};
    if (r <= 0)
        return QRegion(0, 0, size.width(), size.height());
    QRegion region;
    const int bands = static_cast<int>(std::ceil(r));
    // Rows within the radius of the top or bottom edge narrow towards the corners; a
    // row takes the widest extent it reaches, at its edge nearest the middle.
    for (int y = 0; y < bands && y < size.height(); ++y) {
        const qreal dy = std::max<qreal>(0, r - (y + 1));
        const qreal dx = r - std::sqrt(std::max<qreal>(0, r * r - dy * dy));
        const int inset = static_cast<int>(std::floor(dx));
        const int width = size.width() - 2 * inset;
        if (width <= 0)
            continue;
        region += QRect(inset, y, width, 1);
        region += QRect(inset, size.height() - 1 - y, width, 1);
    }
    if (size.height() > 2 * bands)
        region += QRect(0, bands, size.width(), size.height() - 2 * bands);
    return region;
}

} // namespace TovuKitPainting
