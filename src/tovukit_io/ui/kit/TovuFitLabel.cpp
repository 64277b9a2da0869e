#include <tovukit_io/ui/kit/TovuFitLabel.h>

#include <QEvent>
#include <QFontMetricsF>
#include <QPainter>
#include <QStyle>

#include <algorithm>
#include <cmath>

namespace {

qreal textWidth(const QFont &font, const QString &text)
{
    return QFontMetricsF(font).size(Qt::TextSingleLine, text).width();
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

TovuFitLabel::TovuFitLabel(const QString &text, QWidget *parent)
    : QLabel(parent)
{
    // Before any text: the automatic format could take survey text for markup.
    setTextFormat(Qt::PlainText);
    setWordWrap(false);
    setAlignment(Qt::AlignCenter);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    setText(text);
}

void TovuFitLabel::setText(const QString &text)
{
    QLabel::setText(text);
    setAccessibleName(text);
    forgetFit();
}

qreal TovuFitLabel::minimumScaleFactor() const
{
    return m_minimumScaleFactor;
}

void TovuFitLabel::setMinimumScaleFactor(qreal factor)
{
    if (!std::isfinite(factor))
        return;
    factor = std::clamp<qreal>(factor, 0.05, 1);
    if (m_minimumScaleFactor == factor)
        return;
    m_minimumScaleFactor = factor;
    forgetFit();
}

QFont TovuFitLabel::fittedFont() const
{
    return fit().font;
}

const TovuFitLabel::Fit &TovuFitLabel::fit() const
{
    // A hidden label hears of no resize: the width is part of what the fit is for.
    const qreal available = contentsRect().width();
    if (m_fit && m_fit->available == available)
        return *m_fit;
    const QFont natural = font();
    qreal width = textWidth(natural, text());
    if (width <= available || width <= 0) {
        m_fit = Fit{natural, width, available};
        return *m_fit;
    }
    // Glyph advances do not shrink exactly in proportion (and pixel sizes are whole):
    // step down until it fits or the smallest allowed size is reached.
    qreal scale = std::max(m_minimumScaleFactor, available / width);
    QFont candidate = scaled(natural, scale);
    width = textWidth(candidate, text());
    while (width > available && scale > m_minimumScaleFactor) {
        scale = std::max(m_minimumScaleFactor, scale * 0.95);
        candidate = scaled(natural, scale);
        width = textWidth(candidate, text());
    }
    m_fit = Fit{candidate, width, available};
    return *m_fit;
}

void TovuFitLabel::forgetFit()
{
    m_fit.reset();
    update();
}

void TovuFitLabel::changeEvent(QEvent *event)
{
    QLabel::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange)
        forgetFit();
}

QSize TovuFitLabel::sizeHint() const
{
    const QFontMetrics metrics(font());
    const QMargins margins = contentsMargins();
    return QSize(metrics.height() + margins.left() + margins.right(),
                 metrics.height() + margins.top() + margins.bottom());
}

QSize TovuFitLabel::minimumSizeHint() const
{
    return sizeHint();
}

void TovuFitLabel::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    drawFrame(&painter);
    const QRect area = contentsRect();
    const Fit &fitted = fit();
    painter.setFont(fitted.font);
    // Eliding measures the text again: only when even the smallest size is too wide.
    const QString shown = fitted.textWidth <= area.width()
        ? text()
        : QFontMetrics(fitted.font).elidedText(text(), Qt::ElideRight, area.width(), Qt::TextSingleLine);
    const auto flags = static_cast<int>(QStyle::visualAlignment(layoutDirection(), alignment())) | Qt::TextSingleLine;
    style()->drawItemText(&painter, area, flags, palette(), isEnabled(), shown, foregroundRole());
}
