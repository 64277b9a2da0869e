#include <tovukit_io/ui/kit/TovuTextField.h>

#include <tovukit_io/viewmodel/TovuPageMetrics.h>

#include <QEvent>
#include <QFocusEvent>
#include <QPainter>

#include <limits>

namespace {

using Metrics = TovuPageMetrics;

// QLineEdit keeps 2 points of its own inside the text margins.
constexpr int lineEditMargin = 2;
constexpr int textPadding = qRound(Metrics::fieldPadding) - lineEditMargin;

} // namespace

TovuTextField::TovuTextField(QWidget *parent)
    : QLineEdit(parent)
    , TovuInputFrame(this, Metrics::fieldCornerRadius, Metrics::fieldBorderWidth)
{
    setFrame(false);
    setTextMargins(textPadding, 0, textPadding, 0);
    setFixedHeight(qRound(Metrics::fieldHeight));
    setMaxLength(std::numeric_limits<int>::max());
    setAttribute(Qt::WA_MacShowFocusRect, false);
    applyFramePalette();
}

TovuTextField::~TovuTextField() = default;

void TovuTextField::paintEvent(QPaintEvent *event)
{
    {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        paintFrame(painter, rect());
    }
    QLineEdit::paintEvent(event);
}

void TovuTextField::changeEvent(QEvent *event)
{
    QLineEdit::changeEvent(event);
    frameChangeEvent(event);
}

void TovuTextField::focusInEvent(QFocusEvent *event)
{
    QLineEdit::focusInEvent(event);
    if (frameFocusIn())
        Q_EMIT focused();
}

void TovuTextField::focusOutEvent(QFocusEvent *event)
{
    QLineEdit::focusOutEvent(event);
    if (frameFocusOut(event))
        Q_EMIT blurred();
}
