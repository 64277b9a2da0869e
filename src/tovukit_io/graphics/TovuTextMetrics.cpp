#include <tovukit_io/graphics/TovuTextMetrics.h>

#include <QFontMetrics>
#include <QFontMetricsF>
#include <QHash>
#include <QPaintDevice>

namespace {

// A font's equality leaves out the resolution it is measured at: the key keeps it where
// it matters.
template<class Rect>
struct Key {
    QFont font;
    int dpi = 0;
    Rect rect;
    int flags = 0;
    QString text;

    bool operator==(const Key &other) const
    {
        return dpi == other.dpi && flags == other.flags && rect == other.rect && text == other.text
            && font == other.font;
    }
};

template<class Rect>
size_t qHash(const Key<Rect> &key, size_t seed = 0)
{
    return qHashMulti(seed, key.font, key.dpi, key.rect.x(), key.rect.y(), key.rect.width(), key.rect.height(),
                      key.flags, key.text);
}

// Enough for every text of a few pages; emptied rather than trimmed when full.
constexpr qsizetype capacity = 2048;

template<class Metrics, class Rect>
Rect remembered(const QFont &font, const QPaintDevice &device, const Rect &rect, int flags, const QString &text)
{
    static QHash<Key<Rect>, Rect> known;
    // A size in pixels measures the same at any resolution; asking a widget for its
    // resolution means finding its screen, which costs as much as a short measurement.
    const int dpi = font.pixelSize() > 0 ? 0 : device.logicalDpiY();
    Key<Rect> key{font, dpi, rect, flags, text};
    const auto found = known.constFind(key);
    if (found != known.constEnd())
        return found.value();
    const Rect bounds = Metrics(font, &device).boundingRect(rect, flags, text);
    if (known.size() >= capacity)
        known.clear();
    known.insert(std::move(key), bounds);
    return bounds;
}

} // namespace

QRect TovuTextMetrics::boundingRect(const QFont &font, const QPaintDevice &device, const QRect &rect, int flags,
                                    const QString &text)
{
    return remembered<QFontMetrics>(font, device, rect, flags, text);
}

QRectF TovuTextMetrics::boundingRect(const QFont &font, const QPaintDevice &device, const QRectF &rect, int flags,
                                     const QString &text)
{
    return remembered<QFontMetricsF>(font, device, rect, flags, text);
}
