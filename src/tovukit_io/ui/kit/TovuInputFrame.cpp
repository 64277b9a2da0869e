#include <tovukit_io/ui/kit/TovuInputFrame.h>

#include <tovukit_io/graphics/TovuBoxLook.h>
#include <tovukit_io/graphics/TovuPainting.h>
#include <tovukit_io/viewmodel/TovuPageMetrics.h>
#include <tovukit_io/viewmodel/TovuPlatformColors.h>

#include "TovuKitAnimator.h"

#include <QEvent>
#include <QFocusEvent>
#include <QPalette>
#include <QWidget>

namespace {

using Role = TovuPlatformColors::Role;

QColor mix(const QColor &from, const QColor &to, qreal t)
{
    if (t <= 0)
        return from;
    if (t >= 1)
        return to;
    const QColor a = from.toRgb();
    const QColor b = to.toRgb();
    const auto f = static_cast<float>(t);
    const auto lerp = [f](float x, float y) {
        return x + (y - x) * f;
    };
    return QColor::fromRgbF(lerp(a.redF(), b.redF()), lerp(a.greenF(), b.greenF()), lerp(a.blueF(), b.blueF()),
                            lerp(a.alphaF(), b.alphaF()));
}

} // namespace

class TovuInputFrame::Private
{
public:
    explicit Private(QWidget *w)
        : widget(w)
        , animator(w, [this](qreal value) {
            progress = value;
            widget->update();
        })
    { }

    void animateTo(qreal target)
    {
        animator.run({progress, target}, TovuPageMetrics::fieldFocusSeconds, TovuKitAnimator::easeInOut());
    }
    void applyPalette();

    QWidget *widget;
    TovuKitAnimator animator;
    TovuBoxLook look;
    QColor focusBorder;
    qreal progress = 0;
    bool focused = false;
    bool error = false;
    bool applyingPalette = false;
};

TovuInputFrame::TovuInputFrame(QWidget *widget, qreal cornerRadius, qreal borderWidth)
    : d(std::make_unique<Private>(widget))
{
    d->look.setCornerRadius(cornerRadius);
    d->look.setBorderWidth(borderWidth);
}

TovuInputFrame::~TovuInputFrame() = default;

QColor TovuInputFrame::backgroundColor() const
{
    return d->look.resolvedBackground();
}

void TovuInputFrame::setBackgroundColor(const QColor &color)
{
    if (d->look.setBackground(color))
        d->widget->update();
}

QColor TovuInputFrame::borderColor() const
{
    return d->look.resolvedBorder();
}

void TovuInputFrame::setBorderColor(const QColor &color)
{
    if (d->look.setBorder(color))
        d->widget->update();
}

qreal TovuInputFrame::borderWidth() const
{
    return d->look.borderWidth;
}

void TovuInputFrame::setBorderWidth(qreal width)
{
    if (d->look.setBorderWidth(width))
        d->widget->update();
}

qreal TovuInputFrame::cornerRadius() const
{
    return d->look.cornerRadius;
}

void TovuInputFrame::setCornerRadius(qreal radius)
{
    if (d->look.setCornerRadius(radius))
        d->widget->update();
}

QColor TovuInputFrame::focusBorderColor() const
{
    return d->focusBorder.isValid() ? d->focusBorder : TovuPlatformColors::color(Role::blue);
}

void TovuInputFrame::setFocusBorderColor(const QColor &color)
{
    if (d->focusBorder == color)
        return;
    d->focusBorder = color;
    d->widget->update();
}

QColor TovuInputFrame::currentBorderColor() const
{
    if (d->error)
        return TovuPlatformColors::color(Role::red);
    return mix(d->look.resolvedBorder(), focusBorderColor(), d->progress);
}

qreal TovuInputFrame::currentBorderWidth() const
{
    return d->look.borderWidth + (TovuPageMetrics::fieldFocusedBorderWidth - d->look.borderWidth) * d->progress;
}

bool TovuInputFrame::hasError() const
{
    return d->error;
}

void TovuInputFrame::setHasError(bool error)
{
    if (d->error == error)
        return;
    d->error = error;
    d->widget->update();
}

bool TovuInputFrame::frameFocusIn()
{
    if (d->focused)
        return false;
    d->focused = true;
    setHasError(false);
    d->animateTo(1);
    return true;
}

bool TovuInputFrame::frameFocusOut(const QFocusEvent *event)
{
    // A context menu takes focus for a moment; editing goes on.
    if (!d->focused || event->reason() == Qt::PopupFocusReason)
        return false;
    d->focused = false;
    d->animateTo(0);
    return true;
}

void TovuInputFrame::paintFrame(QPainter &painter, const QRectF &rect) const
{
    TovuPainting::paintBox(painter, rect, d->look.resolvedBackground(), currentBorderColor(), currentBorderWidth(),
                           d->look.cornerRadius);
}

void TovuInputFrame::applyFramePalette()
{
    d->applyPalette();
}

void TovuInputFrame::frameChangeEvent(const QEvent *event)
{
    if (event->type() == QEvent::PaletteChange || event->type() == QEvent::ApplicationPaletteChange)
        d->applyPalette();
}

void TovuInputFrame::Private::applyPalette()
{
    // Setting the palette sends another palette change, which must not come back here.
    if (applyingPalette)
        return;
    applyingPalette = true;
    QPalette palette = widget->palette();
    palette.setColor(QPalette::Text, TovuPlatformColors::color(Role::label));
    palette.setColor(QPalette::PlaceholderText, TovuPlatformColors::color(Role::secondaryLabel));
    palette.setColor(QPalette::Base, Qt::transparent);
    widget->setPalette(palette);
    applyingPalette = false;
    widget->update();
}
