#pragma once

#include <QColor>
#include <QImage>
#include <QPointF>
#include <QRectF>
#include <QSizeF>

class QPainter;

/// The soft shadow of a rounded box: the box's shape, blurred, moved by an offset and
/// drawn around and under where the box goes, as a layer's shadow looks. It follows the
/// shape, not painted pixels, so a box with children needs no offscreen rendering. Each
/// picture is made once per size, corner radius, blur, colour and pixel ratio, and kept
/// in a cache of its own that any thread may use (a Qt Quick painted item paints on the
/// render thread).
///
/// \code
/// // In a QWidget's graphics effect or a QQuickPaintedItem::paint, before the box itself:
/// TovuShadow::paint(painter, boxRect, 12, QPointF(0, 4), 8, QColor::fromRgbF(0, 0, 0, 0.06f));
/// \endcode
class TovuShadow
{
public:
    /// Draws the shadow of the box at `boxRect`; nothing for an empty box or a clear colour.
    /// The pixel ratio is the painter's device's.
    static void paint(QPainter &painter, const QRectF &boxRect, qreal cornerRadius, QPointF offset, qreal blurRadius,
                      const QColor &color);
    /// The area the shadow of the box at `boxRect` covers: the box moved by `offset` and
    /// grown by spread(`blurRadius`) on every side.
    static QRectF shadowRect(const QRectF &boxRect, QPointF offset, qreal blurRadius);
    /// How far the blur reaches beyond the box's edge, in whole logical pixels.
    static qreal spread(qreal blurRadius);
    /// The picture paint() draws into shadowRect(): the box's size plus spread() on every
    /// side, at `devicePixelRatio` (which the image carries).
    static QImage image(const QSizeF &boxSize, qreal cornerRadius, qreal blurRadius, const QColor &color,
                        qreal devicePixelRatio);

    TovuShadow() = delete;
};
