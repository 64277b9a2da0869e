#include <tovukit_io/ui/kit/TovuTextArea.h>

#include "TovuInputFrame.h"

#include <QEvent>
#include <QFocusEvent>
#include <QPainter>

#include <QTextDocument>

TovuTextArea::TovuTextArea(QWidget *parent)
    : QPlainTextEdit(parent)
    , m_frame(std::make_unique<TovuInputFrame>(this, 8, 1))
{
    setFrameShape(QFrame::NoFrame);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    // The frame is painted on this widget, under the viewport: the viewport stays see-through.
    viewport()->setAutoFillBackground(false);
    document()->setDocumentMargin(8);
    setTabChangesFocus(true);
    setFixedHeight(90);
    setAttribute(Qt::WA_MacShowFocusRect, false);
    m_frame->applyPalette();
}

TovuTextArea::~TovuTextArea() = default;

QColor TovuTextArea::backgroundColor() const
{
    return m_frame->look.resolvedBackground();
}

void TovuTextArea::setBackgroundColor(const QColor &color)
{
    if (m_frame->look.setBackground(color))
        update();
}

QColor TovuTextArea::borderColor() const
{
    return m_frame->look.resolvedBorder();
}

void TovuTextArea::setBorderColor(const QColor &color)
{
    if (m_frame->look.setBorder(color))
        update();
}

qreal TovuTextArea::borderWidth() const
{
    return m_frame->look.borderWidth;
}

void TovuTextArea::setBorderWidth(qreal width)
{
    if (m_frame->look.setBorderWidth(width))
        update();
}

qreal TovuTextArea::cornerRadius() const
{
    return m_frame->look.cornerRadius;
}

void TovuTextArea::setCornerRadius(qreal radius)
{
    if (m_frame->look.setCornerRadius(radius))
        update();
}

QColor TovuTextArea::focusBorderColor() const
{
    return m_frame->resolvedFocusBorder();
}

void TovuTextArea::setFocusBorderColor(const QColor &color)
{
    if (m_frame->focusBorder == color)
        return;
    m_frame->focusBorder = color;
    update();
}

bool TovuTextArea::hasError() const
{
    return m_frame->hasError();
}

void TovuTextArea::setHasError(bool error)
{
    m_frame->setHasError(error);
}

QColor TovuTextArea::currentBorderColor() const
{
    return m_frame->currentBorderColor();
}

qreal TovuTextArea::currentBorderWidth() const
{
    return m_frame->currentBorderWidth();
}

bool TovuTextArea::event(QEvent *event)
{
    // A scroll area's own paint event never reaches paintEvent(), which paints the
    // viewport; the frame goes in here, before QFrame draws (nothing, without a shape).
    if (event->type() == QEvent::Paint) {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        m_frame->paint(painter, rect());
    }
    return QPlainTextEdit::event(event);
}

void TovuTextArea::changeEvent(QEvent *event)
{
    QPlainTextEdit::changeEvent(event);
    if (event->type() == QEvent::PaletteChange || event->type() == QEvent::ApplicationPaletteChange)
        m_frame->applyPalette();
}

void TovuTextArea::focusInEvent(QFocusEvent *event)
{
    QPlainTextEdit::focusInEvent(event);
    if (m_frame->focusIn())
        Q_EMIT focused();
}

void TovuTextArea::focusOutEvent(QFocusEvent *event)
{
    QPlainTextEdit::focusOutEvent(event);
    // A context menu takes focus for a moment; editing goes on.
    if (event->reason() != Qt::PopupFocusReason && m_frame->focusOut())
        Q_EMIT blurred();
}
