#include <tovukit_io/ui/kit/TovuFitLabel.h>

#include <QEvent>
#include <QFontMetrics>
#include <QPainter>
#include <QStyle>

#include <algorithm>
#include <cmath>

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
    return fit().font();
}

const TovuTextFit &TovuFitLabel::fit() const
{
    // A hidden label hears of no resize: the width is part of what the fit is for.
    const qreal available = contentsRect().width();
    if (!m_fit || m_fit->available() != available)
        m_fit = TovuTextFit(text(), font(), available, m_minimumScaleFactor, *this);
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
    const TovuTextFit &fitted = fit();
    painter.setFont(fitted.font());
    const QString shown = fitted.shownText(area.width());
    const auto flags = static_cast<int>(QStyle::visualAlignment(layoutDirection(), alignment())) | Qt::TextSingleLine;
    style()->drawItemText(&painter, area, flags, palette(), isEnabled(), shown, foregroundRole());
}
