#pragma once

#include <QColor>
#include <QPainterPath>
#include <QRect>
#include <QRectF>
#include <QRegion>
#include <QSize>
#include <QString>

#include <functional>

class QPainter;

/// The painting the Widgets kit and a Qt Quick painted item share: rounded shapes, a
/// box of background and border, pictures cached where they land on whole device pixels,
/// and placement. Logical pixels throughout; the cached pictures live in QPixmapCache,
/// so paint on the GUI thread.
///
/// \code
/// TovuPainting::paintBox(painter, rect, background, border, 1.5, 12);
/// const QRect mark = TovuPainting::alignedRect(Qt::RightToLeft, Qt::AlignLeading | Qt::AlignVCenter, size, area);
/// \endcode
class TovuPainting
{
public:
    /// The radius actually drawn: never more than half the shorter side, never negative.
    static qreal effectiveRadius(const QSizeF &size, qreal radius);

    static QPainterPath roundedRect(const QRectF &rect, qreal radius);

    /// Pixels of the surface actually painted per logical pixel (an image a widget is rendered
    /// into, a Qt Quick item's texture at 2x), which need not be the widget's own: where the
    /// painter only translates and scales evenly. 0 under any other transform.
    static qreal pixelRatio(const QPainter &painter);

    /// A square of about `side` centred on `centre`, moved and sized to whole device pixels
    /// where the painter only translates, so a cached picture of it stays sharp.
    static QRectF pixelAligned(const QPainter &painter, const QPointF &centre, qreal side);

    /// Paints what `paint` draws into `rect` (given a painter and the area to fill), through a
    /// picture cached under `key` and the size, where it lands on whole device pixels
    /// unscaled; directly anywhere else. `key` must name everything the drawing depends on.
    static void paintCached(QPainter &painter, const QRectF &rect, const QString &key,
                            const std::function<void(QPainter &, const QRectF &)> &paint);

    /// The keyboard's focus ring, `width` wide, just inside `bounds` with corners of `radius`:
    /// in `ring`, or on a control `filled` with a colour of its own in `background`, a little
    /// further in, so it shows against the fill.
    static void paintFocusRing(QPainter &painter, const QRectF &bounds, qreal radius, qreal width, bool filled,
                               const QColor &ring, const QColor &background);
    /// Background over the whole shape, then the border inside it, like a layer's border.
    static void paintBox(QPainter &painter, const QRectF &rect, const QColor &background, const QColor &border,
                         qreal borderWidth, qreal radius);

    /// Every whole pixel the rounded shape touches: a mask that keeps the shape's
    /// antialiased edge and cuts what lies beyond it.
    static QRegion roundedRegion(const QSize &size, qreal radius);

    /// Where something of `size` goes in `rect` with `alignment`, leading and trailing
    /// read in `direction` (as QStyle::alignedRect places it, without needing widgets).
    static QRect alignedRect(Qt::LayoutDirection direction, Qt::Alignment alignment, const QSize &size,
                             const QRect &rect);

    TovuPainting() = delete;
};
