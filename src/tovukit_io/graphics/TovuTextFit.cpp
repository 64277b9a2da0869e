#include <tovukit_io/graphics/TovuTextFit.h>

#include <tovukit_io/graphics/TovuTextMetrics.h>

#include <QFontMetrics>

#include <algorithm>
#include <cmath>

namespace {

qreal textWidth(const QFont &font, const QString &text, const QPaintDevice &device)
{
    // What QFontMetricsF::size() measures.
    return TovuTextMetrics::boundingRect(font, device, QRectF(), Qt::TextSingleLine | Qt::TextLongestVariant, text)
        .width();
}

// `font` at `scale` of its size, in the unit it was given in.
QFont scaled(const QFont &font, qreal scale)
{
    QFont result = font;
    if (font.pixelSize() > 0)
        result.setPixelSize(std::max(1, static_cast<int>(std::floor(font.pixelSize() * scale))));
    else
        result.setPointSizeF(std::max<qreal>(0.5, font.pointSizeF() * scale));
    return result;
}

} // namespace

TovuTextFit::TovuTextFit(const QString &text, const QFont &font, qreal available, qreal minimumScaleFactor,
                         const QPaintDevice &device)
    : m_text(text)
    , m_font(font)
    , m_available(available)
{
    m_textWidth = textWidth(font, text, device);
    if (m_textWidth <= available || m_textWidth <= 0)
        return;
    // Glyph advances do not shrink exactly in proportion (and pixel sizes are whole):
    // step down until it fits or the smallest allowed size is reached.
    qreal scale = std::max(minimumScaleFactor, available / m_textWidth);
    m_font = scaled(font, scale);
    m_textWidth = textWidth(m_font, text, device);
    while (m_textWidth > available && scale > minimumScaleFactor) {
        scale = std::max(minimumScaleFactor, scale * 0.95);
        m_font = scaled(font, scale);
        m_textWidth = textWidth(m_font, text, device);
    }
}

QString TovuTextFit::shownText(int width) const
{
    // Eliding measures the text again: only when even the smallest size is too wide.
    if (m_textWidth <= width)
        return m_text;
    return QFontMetrics(m_font).elidedText(m_text, Qt::ElideRight, width, Qt::TextSingleLine);
}
