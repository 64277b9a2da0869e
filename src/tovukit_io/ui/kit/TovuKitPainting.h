#pragma once

// Painting shared by the kit's box and button; not installed.

#include <QColor>
#include <QPainterPath>
#include <QRectF>
#include <QRegion>
#include <QSize>
#include <QString>

#include <functional>

class QPainter;

namespace TovuKitPainting {

/// The radius actually drawn: never more than half the shorter side, never negative.
qreal effectiveRadius(const QSizeF &size, qreal radius);

QPainterPath roundedRect(const QRectF &rect, qreal radius);

/// Device pixels per logical pixel where the painter only translates: the ratio of the
/// surface actually painted (an image a widget is rendered into, say), which need not be
/// the widget's own. 0 under any other transform.
qreal pixelRatio(const QPainter &painter);

/// A square of about `side` centred on `centre`, moved and sized to whole device pixels
/// where the painter only translates, so a cached picture of it stays sharp.
QRectF pixelAligned(const QPainter &painter, const QPointF &centre, qreal side);

/// Paints what `paint` draws into `rect` (given a painter and the area to fill), through a
/// picture cached under `key` and the size, where it lands on whole device pixels
/// unscaled; directly anywhere else. `key` must name everything the drawing depends on.
void paintCached(QPainter &painter, const QRectF &rect, const QString &key,
                 const std::function<void(QPainter &, const QRectF &)> &paint);

/// Background over the whole shape, then the border inside it, like a layer's border.
void paintBox(QPainter &painter, const QRectF &rect, const QColor &background, const QColor &border, qreal borderWidth,
              qreal radius);

/// Every whole pixel the rounded shape touches: a mask that keeps the shape's
/// antialiased edge and cuts what lies beyond it.
QRegion roundedRegion(const QSize &size, qreal radius);

} // namespace TovuKitPainting
