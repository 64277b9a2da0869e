#include <tovukit_io/graphics/TovuEmoji.h>

#include <tovukit_io/graphics/TovuPainting.h>
#include <tovukit_io/graphics/TovuTextMetrics.h>

#include <QGuiApplication>
#include <QPaintDevice>
#include <QPainter>
#include <QPixmap>
#include <QPixmapCache>
#include <QStringList>

#include <algorithm>
#include <cmath>

QString TovuEmoji::family()
{
    return QStringLiteral("Noto Color Emoji");
}

QFont TovuEmoji::font(qreal pixelSize)
{
    QFont result = withEmoji(QGuiApplication::font());
    const qreal size = std::isfinite(pixelSize) ? pixelSize : 1;
    result.setPixelSize(std::max(1, static_cast<int>(std::lround(std::min<qreal>(size, 4096)))));
    return result;
}

QFont TovuEmoji::withEmoji(const QFont &base)
{
    QStringList families = base.families();
    if (families.isEmpty() && !base.family().isEmpty())
        families.append(base.family());
    families.removeAll(family());
    families.prepend(family());
    QFont result = base;
    result.setFamilies(families);
    return result;
}

bool TovuEmoji::isEmojiFont(const QFont &font)
{
    return font.families().value(0) == family();
}

void TovuEmoji::drawText(QPainter &painter, const QRectF &rect, int flags, const QString &text, const QFont &font,
                         const QColor &color)
{
    // Scaled or rotated, the picture would be resampled: draw the glyphs themselves.
    const qreal dpr = TovuPainting::pixelRatio(painter);
    if (dpr <= 0) {
        painter.setFont(font);
        painter.setPen(color);
        painter.drawText(rect, flags, text);
        return;
    }
    const QString key = QStringLiteral("tovu-emoji/%1/%2/%3/%4").arg(text, font.key()).arg(color.rgba()).arg(dpr);
    QPixmap picture;
    QSizeF size;
    if (QPixmapCache::find(key, &picture)) {
        // Measuring colour glyphs is nearly as dear as drawing them: the picture knows its size.
        size = picture.deviceIndependentSize();
    } else {
        size = TovuTextMetrics::boundingRect(font, *painter.device(), QRectF(), Qt::AlignLeft, text).size();
        picture = QPixmap((size * dpr).toSize().expandedTo(QSize(1, 1)));
        picture.setDevicePixelRatio(dpr);
        picture.fill(Qt::transparent);
        QPainter p(&picture);
        p.setRenderHint(QPainter::TextAntialiasing);
        p.setFont(font);
        p.setPen(color);
        p.drawText(QRectF(QPointF(), size), Qt::AlignCenter, text);
        p.end();
        QPixmapCache::insert(key, picture);
        size = picture.deviceIndependentSize(); // drawn the same way on every paint
    }
    const auto alignment = Qt::Alignment(flags) & (Qt::AlignHorizontal_Mask | Qt::AlignVertical_Mask);
    const QRect target
        = TovuPainting::alignedRect(painter.layoutDirection(), alignment, size.toSize(), rect.toAlignedRect());
    painter.drawPixmap(QRectF(target.topLeft(), size), picture, QRectF(picture.rect()));
}
