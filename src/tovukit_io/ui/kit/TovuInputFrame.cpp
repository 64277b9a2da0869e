#include "TovuInputFrame.h"

#include <tovukit_io/viewmodel/TovuPlatformColors.h>

#include "TovuKitPainting.h"

#include <QPalette>
#include <QWidget>

namespace {

using Role = TovuPlatformColors::Role;

constexpr qreal focusedBorderWidth = 2;
constexpr qreal focusSeconds = 0.2;

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

TovuInputFrame::TovuInputFrame(QWidget *widget, qreal cornerRadius, qreal borderWidth)
    : m_widget(widget)
    , m_animator(widget, [this](qreal progress) {
        m_progress = progress;
        m_widget->update();
    })
{
    look.setCornerRadius(cornerRadius);
    look.setBorderWidth(borderWidth);
}

QColor TovuInputFrame::resolvedFocusBorder() const
{
    return focusBorder.isValid() ? focusBorder : TovuPlatformColors::color(Role::blue);
}

QColor TovuInputFrame::currentBorderColor() const
{
    if (m_error)
        return TovuPlatformColors::color(Role::red);
    return mix(look.resolvedBorder(), resolvedFocusBorder(), m_progress);
}

qreal TovuInputFrame::currentBorderWidth() const
{
    return look.borderWidth + (focusedBorderWidth - look.borderWidth) * m_progress;
}

bool TovuInputFrame::hasError() const
{
    return m_error;
}

bool TovuInputFrame::setHasError(bool error)
{
    if (m_error == error)
        return false;
    m_error = error;
    m_widget->update();
    return true;
}

bool TovuInputFrame::focusIn()
{
    if (m_focused)
        return false;
    m_focused = true;
    setHasError(false);
    animateTo(1);
    return true;
}

bool TovuInputFrame::focusOut()
{
    if (!m_focused)
        return false;
    m_focused = false;
    animateTo(0);
    return true;
}

void TovuInputFrame::animateTo(qreal progress)
{
    m_animator.run({m_progress, progress}, focusSeconds, TovuKitAnimator::easeInOut());
}

void TovuInputFrame::paint(QPainter &painter, const QRectF &rect) const
{
    TovuKitPainting::paintBox(painter, rect, look.resolvedBackground(), currentBorderColor(), currentBorderWidth(),
                              look.cornerRadius);
}

void TovuInputFrame::applyPalette()
{
    // Setting the palette sends another palette change, which must not come back here.
    if (m_applyingPalette)
        return;
    m_applyingPalette = true;
    QPalette palette = m_widget->palette();
    palette.setColor(QPalette::Text, TovuPlatformColors::color(Role::label));
    palette.setColor(QPalette::PlaceholderText, TovuPlatformColors::color(Role::secondaryLabel));
    palette.setColor(QPalette::Base, Qt::transparent);
    m_widget->setPalette(palette);
    m_applyingPalette = false;
    m_widget->update();
}
