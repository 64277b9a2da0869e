#include <tovukit_io/graphics/TovuPainting.h>

#include <QPaintDevice>
#include <QPainter>
#include <QPen>
#include <QPixmap>
#include <QPixmapCache>
#include <QString>

#include <algorithm>
#include <bit>
#include <cmath>
#include <functional>

qreal TovuPainting::effectiveRadius(const QSizeF &size, qreal radius)
{
    if (!(radius > 0))
        return 0;
    return std::min(radius, std::min(size.width(), size.height()) / 2);
}

QPainterPath TovuPainting::roundedRect(const QRectF &rect, qreal radius)
{
    QPainterPath path;
    const qreal r = effectiveRadius(rect.size(), radius);
    if (r > 0)
        path.addRoundedRect(rect, r, r);
    else
        path.addRect(rect);
    return path;
}

namespace {

// Logical coordinates to the pixels of the surface painted: the world transform and the
// device's own ratio (a 2x pixmap or backing store), which the combined one includes.
QTransform toPixels(const QPainter &painter)
{
    return painter.combinedTransform();
}

} // namespace

qreal TovuPainting::pixelRatio(const QPainter &painter)
{
    if (!painter.device())
        return 0;
    const QTransform pixels = toPixels(painter);
    if (pixels.type() > QTransform::TxScale || pixels.m11() != pixels.m22() || !(pixels.m11() > 0))
        return 0;
    return pixels.m11();
}

namespace {

void paintBoxDirectly(QPainter &painter, const QRectF &rect, const QColor &background, const QColor &border,
                      qreal borderWidth, qreal radius)
{
    const qreal r = TovuPainting::effectiveRadius(rect.size(), radius);
    if (background.alpha() > 0)
        painter.fillPath(TovuPainting::roundedRect(rect, r), background);
    const qreal width = std::min(borderWidth, std::min(rect.width(), rect.height()) / 2);
    if (width > 0 && border.alpha() > 0) {
        const qreal half = width / 2;
        QPen pen(border, width);
        pen.setJoinStyle(Qt::MiterJoin);
        painter.strokePath(
            TovuPainting::roundedRect(rect.adjusted(half, half, -half, -half), std::max<qreal>(0, r - half)), pen);
    }
}

// Rows of option buttons, scales of score buttons and grids of stars share a handful of
// looks: each is drawn once into a cached picture, since filling and stroking
// antialiased paths is the dearest part of painting a page.
constexpr qreal largestCachedSide = 512;

bool isWhole(qreal value)
{
    return std::abs(value - std::round(value)) < 1e-6;
}

// Only where the picture lands on whole device pixels: anywhere else it would be
// resampled, and drawing the shape itself is sharper.
bool canUseCache(const QPainter &painter, const QRectF &rect)
{
    const qreal dpr = TovuPainting::pixelRatio(painter);
    if (dpr <= 0 || rect.width() > largestCachedSide || rect.height() > largestCachedSide)
        return false;
    const QPointF origin = toPixels(painter).map(rect.topLeft());
    return isWhole(origin.x()) && isWhole(origin.y()) && isWhole(rect.width() * dpr) && isWhole(rect.height() * dpr);
}

// A number as its bits: exact, and far cheaper to write out than in decimals, which a
// page of buttons would otherwise do a few hundred times a frame.
QString keyPart(qreal value)
{
    return QString::number(std::bit_cast<quint64>(static_cast<double>(value)), 16);
}

QString boxKey(const QColor &background, const QColor &border, qreal borderWidth, qreal radius)
{
    return u"tovu-box/" + QString::number(background.rgba(), 16) + u'/' + QString::number(border.rgba(), 16) + u'/'
        + keyPart(borderWidth) + u'/' + keyPart(radius);
}

} // namespace

QRectF TovuPainting::pixelAligned(const QPainter &painter, const QPointF &centre, qreal side)
{
    const QRectF square(centre - QPointF(side / 2, side / 2), QSizeF(side, side));
    const qreal dpr = pixelRatio(painter);
    if (dpr <= 0)
        return square;
    const QTransform pixels = toPixels(painter);
    const QPointF corner = pixels.map(square.topLeft());
    const QPointF origin = pixels.inverted().map(QPointF(std::round(corner.x()), std::round(corner.y())));
    const qreal snappedSide = std::max(std::round(side * dpr), 1.0) / dpr;
    return QRectF(origin, QSizeF(snappedSide, snappedSide));
}

void TovuPainting::paintCached(QPainter &painter, const QRectF &rect, const QString &key,
                               const std::function<void(QPainter &, const QRectF &)> &paint)
{
    if (rect.isEmpty())
        return;
    if (!canUseCache(painter, rect)) {
        paint(painter, rect);
        return;
    }
    const qreal dpr = pixelRatio(painter);
    const QString sizedKey = key + u'/' + keyPart(rect.width()) + u'x' + keyPart(rect.height()) + u'@' + keyPart(dpr);
    QPixmap picture;
    if (!QPixmapCache::find(sizedKey, &picture)) {
        picture = QPixmap((rect.size() * dpr).toSize());
        picture.setDevicePixelRatio(dpr);
        picture.fill(Qt::transparent);
        QPainter p(&picture);
        p.setRenderHint(QPainter::Antialiasing);
        paint(p, QRectF(QPointF(), rect.size()));
        p.end();
        QPixmapCache::insert(sizedKey, picture);
    }
    painter.drawPixmap(rect.topLeft(), picture);
}

void TovuPainting::paintBox(QPainter &painter, const QRectF &rect, const QColor &background, const QColor &border,
                            qreal borderWidth, qreal radius)
{
    // Symbol and face buttons have no box at all: not even an empty picture to blend.
    if (background.alpha() == 0 && (border.alpha() == 0 || !(borderWidth > 0)))
        return;
    paintCached(painter, rect, boxKey(background, border, borderWidth, radius),
                [&](QPainter &target, const QRectF &area) {
                    paintBoxDirectly(target, area, background, border, borderWidth, radius);
                });
}

QRegion TovuPainting::roundedRegion(const QSize &size, qreal radius)
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

QRect TovuPainting::alignedRect(Qt::LayoutDirection direction, Qt::Alignment alignment, const QSize &size,
                                const QRect &rect)
{
    // Leading and trailing become left and right; whole-pixel halves, as the widget styles place things.
    if (!(alignment & Qt::AlignHorizontal_Mask))
        alignment |= Qt::AlignLeft;
    if (!(alignment & Qt::AlignAbsolute) && direction == Qt::RightToLeft
        && (alignment & (Qt::AlignLeft | Qt::AlignRight)))
        alignment ^= (Qt::AlignLeft | Qt::AlignRight);
    int x = rect.x();
    int y = rect.y();
    if ((alignment & Qt::AlignVCenter) == Qt::AlignVCenter)
        y += rect.height() / 2 - size.height() / 2;
    else if ((alignment & Qt::AlignBottom) == Qt::AlignBottom)
        y += rect.height() - size.height();
    if ((alignment & Qt::AlignRight) == Qt::AlignRight)
        x += rect.width() - size.width();
    else if ((alignment & Qt::AlignHCenter) == Qt::AlignHCenter)
        x += rect.width() / 2 - size.width() / 2;
    return QRect(QPoint(x, y), size);
}

void TovuPainting::paintFocusRing(QPainter &painter, const QRectF &bounds, qreal radius, qreal width, bool filled,
                                  const QColor &ring, const QColor &background)
{
    const qreal inset = filled ? width * 1.5 : width / 2;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.strokePath(roundedRect(bounds.adjusted(inset, inset, -inset, -inset), std::max<qreal>(0, radius - inset)),
                       QPen(filled ? background : ring, width));
    painter.restore();
}
