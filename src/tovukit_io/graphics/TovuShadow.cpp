#include <tovukit_io/graphics/TovuShadow.h>

#include <tovukit_io/graphics/TovuPainting.h>

#include <QCache>
#include <QMutex>
#include <QPaintDevice>
#include <QPainter>

#include <algorithm>
#include <cmath>
#include <vector>

namespace {

// Three box-blur passes approximate a Gaussian; the alpha channel is all a shadow needs.
void blurAlpha(QImage &image, int radius)
{
    if (radius <= 0)
        return;
    const int width = image.width();
    const int height = image.height();
    const int window = 2 * radius + 1;
    std::vector<int> line(static_cast<std::size_t>(std::max(width, height)));
    auto blurLine = [&](uchar *start, int count, qsizetype stride) {
        for (int pass = 0; pass < 3; ++pass) {
            for (int i = 0; i < count; ++i)
                line[static_cast<std::size_t>(i)] = start[i * stride];
            int sum = 0;
            for (int i = 0; i < std::min(radius, count); ++i)
                sum += line[static_cast<std::size_t>(i)];
            for (int i = 0; i < count; ++i) {
                if (i + radius < count)
                    sum += line[static_cast<std::size_t>(i + radius)];
                if (i - radius - 1 >= 0)
                    sum -= line[static_cast<std::size_t>(i - radius - 1)];
                start[i * stride] = static_cast<uchar>(sum / window);
            }
        }
    };
    for (int y = 0; y < height; ++y)
        blurLine(image.scanLine(y), width, 1);
    for (int x = 0; x < width; ++x)
        blurLine(image.bits() + x, height, image.bytesPerLine());
}

// The shape, blurred, in the alpha channel only.
QImage blurredShape(const QSize &pixels, const QSizeF &boxSize, qreal cornerRadius, qreal blurRadius, qreal spread,
                    qreal dpr)
{
    QImage alpha(pixels, QImage::Format_Alpha8);
    alpha.fill(0);
    {
        QPainter p(&alpha);
        p.setRenderHint(QPainter::Antialiasing);
        p.scale(dpr, dpr);
        p.fillPath(TovuPainting::roundedRect(QRectF(QPointF(spread, spread), boxSize), cornerRadius), Qt::black);
    }
    // A layer's shadow radius is about two standard deviations; three box passes of
    // half-width k have a variance of k(k + 1).
    const qreal sigma = blurRadius / 2 * dpr;
    blurAlpha(alpha, static_cast<int>(std::lround(std::max<qreal>(0, sigma - 0.5))));
    return alpha;
}

QImage makeImage(const QSizeF &boxSize, qreal cornerRadius, qreal blurRadius, const QColor &color, qreal dpr)
{
    const qreal spread = TovuShadow::spread(blurRadius);
    const QSize pixels((QSizeF(boxSize.width() + 2 * spread, boxSize.height() + 2 * spread) * dpr).toSize());
    if (pixels.isEmpty())
        return {};
    QImage image(pixels, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter p(&image);
    p.drawImage(0, 0, blurredShape(pixels, boxSize, cornerRadius, blurRadius, spread, dpr));
    p.setCompositionMode(QPainter::CompositionMode_SourceIn);
    p.fillRect(image.rect(), color);
    p.end();
    image.setDevicePixelRatio(dpr);
    return image;
}

struct Key {
    qreal width = 0;
    qreal height = 0;
    qreal cornerRadius = 0;
    qreal blurRadius = 0;
    qreal dpr = 0;
    QRgba64 color;

    bool operator==(const Key &other) const = default;
};

size_t qHash(const Key &key, size_t seed = 0)
{
    return qHashMulti(seed, key.width, key.height, key.cornerRadius, key.blurRadius, key.dpr, quint64(key.color));
}

// A few dozen boxes' worth; a shadow larger than the whole cache is made every time.
constexpr qsizetype cacheKilobytes = 16 * 1024;

} // namespace

qreal TovuShadow::spread(qreal blurRadius)
{
    return std::ceil(std::max<qreal>(0, blurRadius) * 1.5);
}

QRectF TovuShadow::shadowRect(const QRectF &boxRect, QPointF offset, qreal blurRadius)
{
    const qreal grow = spread(blurRadius);
    return boxRect.translated(offset).adjusted(-grow, -grow, grow, grow);
}

QImage TovuShadow::image(const QSizeF &boxSize, qreal cornerRadius, qreal blurRadius, const QColor &color,
                         qreal devicePixelRatio)
{
    static QMutex mutex;
    static QCache<Key, QImage> cache(cacheKilobytes);
    const Key key{boxSize.width(), boxSize.height(), cornerRadius, blurRadius, devicePixelRatio, color.rgba64()};
    {
        QMutexLocker lock(&mutex);
        if (const QImage *cached = cache.object(key))
            return *cached;
    }
    // Made outside the lock: another thread's shadow need not wait for this one.
    const QImage made = makeImage(boxSize, cornerRadius, blurRadius, color, devicePixelRatio);
    QMutexLocker lock(&mutex);
    cache.insert(key, new QImage(made), std::max<qsizetype>(1, made.sizeInBytes() / 1024));
    return made;
}

void TovuShadow::paint(QPainter &painter, const QRectF &boxRect, qreal cornerRadius, QPointF offset, qreal blurRadius,
                       const QColor &color)
{
    if (color.alpha() <= 0 || boxRect.isEmpty())
        return;
    const qreal dpr = painter.device() ? painter.device()->devicePixelRatioF() : 1.0;
    const QImage picture = image(boxRect.size(), cornerRadius, blurRadius, color, dpr);
    if (!picture.isNull())
        painter.drawImage(shadowRect(boxRect, offset, blurRadius), picture);
}
