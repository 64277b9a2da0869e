#include "TovuChoiceMark.h"

#include <tovukit_io/graphics/TovuPainting.h>
#include <tovukit_io/graphics/TovuSymbol.h>
#include <tovukit_io/viewmodel/TovuPageMetrics.h>
#include <tovukit_io/viewmodel/TovuPlatformColors.h>

#include <QPainter>

#include <algorithm>

using Metrics = TovuPageMetrics;

void TovuChoiceMark::paint(QPainter &painter, const QRectF &mark, bool radio, bool checked, const QColor &tint)
{
    const qreal side = mark.width();
    const QColor ring = checked ? tint : TovuPlatformColors::color(TovuPlatformColors::Role::gray3);
    const QColor fill = checked ? tint : QColor(Qt::transparent);

    if (radio) {
        const qreal ringWidth = std::min(Metrics::radioBorderWidth, side / 4);
        TovuPainting::paintBox(painter, mark, fill, ring, ringWidth, side / 2);
        if (checked) {
            // Smaller in small circles.
            const qreal dot = std::min(Metrics::radioDotSize, side * 0.56);
            painter.setPen(Qt::NoPen);
            painter.setBrush(Qt::white);
            painter.drawEllipse(mark.center(), dot / 2, dot / 2);
        }
    } else {
        // Corner and check keep their proportions in a checkbox of another size.
        const qreal ringWidth = std::min(Metrics::checkboxBorderWidth, side / 4);
        TovuPainting::paintBox(painter, mark, fill, ring, ringWidth,
                               side * Metrics::checkboxCornerRadius / Metrics::checkboxSize);
        if (checked) {
            const qreal check = side * Metrics::checkGlyphSize / Metrics::checkboxSize;
            TovuSymbol::paint(painter, QRectF(mark.center() - QPointF(check / 2, check / 2), QSizeF(check, check)),
                              u"checkmark", QFont::DemiBold, Qt::white);
        }
    }
}
