#include <tovukit_io/ui/kit/TovuTextField.h>

#include "TovuInputFrame.h"

#include <QEvent>
#include <QFocusEvent>
#include <QPainter>

#include <limits>

namespace {

// QLineEdit keeps 2 points of its own inside the text margins.
constexpr int textPadding = 14 - 2;

} // namespace

TovuTextField::TovuTextField(QWidget *parent)
    : QLineEdit(parent)
    , m_frame(std::make_unique<TovuInputFrame>(this, 10, 1.5))
{
    setFrame(false);
    setTextMargins(textPadding, 0, textPadding, 0);
    setFixedHeight(48);
    setMaxLength(std::numeric_limits<int>::max());
    setAttribute(Qt::WA_MacShowFocusRect, false);
    m_frame->applyPalette();
}

TovuTextField::~TovuTextField() = default;

QColor TovuTextField::backgroundColor() const
{
    return m_frame->look.resolvedBackground();
}

void TovuTextField::setBackgroundColor(const QColor &color)
{
    if (m_frame->look.setBackground(color))
        update();
}

QColor TovuTextField::borderColor() const
{
    return m_frame->look.resolvedBorder();
}

void TovuTextField::setBorderColor(const QColor &color)
{
    if (m_frame->look.setBorder(color))
        update();
}

qreal TovuTextField::borderWidth() const
{
    return m_frame->look.borderWidth;
}

void TovuTextField::setBorderWidth(qreal width)
{
    if (m_frame->look.setBorderWidth(width))
        update();
}

qreal TovuTextField::cornerRadius() const
{
    return m_frame->look.cornerRadius;
}

void TovuTextField::setCornerRadius(qreal radius)
{
    if (m_frame->look.setCornerRadius(radius))
        update();
}

QColor TovuTextField::focusBorderColor() const
{
    return m_frame->resolvedFocusBorder();
}

void TovuTextField::setFocusBorderColor(const QColor &color)
{
    if (m_frame->focusBorder == color)
        return;
    m_frame->focusBorder = color;
    update();
}

bool TovuTextField::hasError() const
{
    return m_frame->hasError();
}

void TovuTextField::setHasError(bool error)
{
    m_frame->setHasError(error);
}

QColor TovuTextField::currentBorderColor() const
{
    return m_frame->currentBorderColor();
}

qreal TovuTextField::currentBorderWidth() const
{
    return m_frame->currentBorderWidth();
}

void TovuTextField::paintEvent(QPaintEvent *event)
{
    {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        m_frame->paint(painter, rect());
    }
    QLineEdit::paintEvent(event);
}

void TovuTextField::changeEvent(QEvent *event)
{
    QLineEdit::changeEvent(event);
    if (event->type() == QEvent::PaletteChange || event->type() == QEvent::ApplicationPaletteChange)
        m_frame->applyPalette();
}

void TovuTextField::focusInEvent(QFocusEvent *event)
{
    QLineEdit::focusInEvent(event);
    if (m_frame->focusIn())
        Q_EMIT focused();
}

void TovuTextField::focusOutEvent(QFocusEvent *event)
{
    QLineEdit::focusOutEvent(event);
    // A context menu takes focus for a moment; editing goes on.
    if (event->reason() != Qt::PopupFocusReason && m_frame->focusOut())
        Q_EMIT blurred();
}
