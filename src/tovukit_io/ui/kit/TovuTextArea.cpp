#include <tovukit_io/ui/kit/TovuTextArea.h>

#include <tovukit_io/viewmodel/TovuPageMetrics.h>

#include <QEvent>
#include <QFocusEvent>
#include <QPainter>

#include <QTextDocument>

TovuTextArea::TovuTextArea(QWidget *parent)
    : QPlainTextEdit(parent)
    , TovuInputFrame(this, TovuPageMetrics::followUpTextCornerRadius, TovuPageMetrics::followUpTextBorderWidth)
{
    setFrameShape(QFrame::NoFrame);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    // The frame is painted on this widget, under the viewport: the viewport stays see-through.
    viewport()->setAutoFillBackground(false);
    document()->setDocumentMargin(TovuPageMetrics::followUpTextMargin);
    setTabChangesFocus(true);
    setFixedHeight(qRound(TovuPageMetrics::followUpTextHeight));
    setAttribute(Qt::WA_MacShowFocusRect, false);
    applyFramePalette();
}

TovuTextArea::~TovuTextArea() = default;

bool TovuTextArea::event(QEvent *event)
{
    // A scroll area's own paint event never reaches paintEvent(), which paints the
    // viewport; the frame goes in here, before QFrame draws (nothing, without a shape).
    if (event->type() == QEvent::Paint) {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        paintFrame(painter, rect());
    }
    return QPlainTextEdit::event(event);
}

void TovuTextArea::changeEvent(QEvent *event)
{
    QPlainTextEdit::changeEvent(event);
    frameChangeEvent(event);
}

void TovuTextArea::focusInEvent(QFocusEvent *event)
{
    QPlainTextEdit::focusInEvent(event);
    if (frameFocusIn())
        Q_EMIT focused();
}

void TovuTextArea::focusOutEvent(QFocusEvent *event)
{
    QPlainTextEdit::focusOutEvent(event);
    if (frameFocusOut(event))
        Q_EMIT blurred();
}
