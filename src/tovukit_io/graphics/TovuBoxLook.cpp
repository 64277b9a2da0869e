#include <tovukit_io/graphics/TovuBoxLook.h>

#include <tovukit_io/graphics/TovuPainting.h>
#include <tovukit_io/viewmodel/TovuPlatformColors.h>

#include <algorithm>
#include <cmath>

namespace {

qreal clampedSize(qreal value)
{
    return std::isfinite(value) ? std::max<qreal>(0, value) : 0;
}

template<class T>
bool assign(T &field, const T &value)
{
    if (field == value)
        return false;
    field = value;
    return true;
}

} // namespace

QColor TovuBoxLook::resolvedBackground() const
{
    return background.isValid() ? background : TovuPlatformColors::color(TovuPlatformColors::Role::systemBackground);
}

QColor TovuBoxLook::resolvedBorder() const
{
    return border.isValid() ? border : TovuPlatformColors::color(TovuPlatformColors::Role::gray4);
}

bool TovuBoxLook::setBackground(const QColor &color)
{
    return assign(background, color);
}

bool TovuBoxLook::setBorder(const QColor &color)
{
    return assign(border, color);
}

bool TovuBoxLook::setBorderWidth(qreal width)
{
    return assign(borderWidth, clampedSize(width));
}

bool TovuBoxLook::setCornerRadius(qreal radius)
{
    return assign(cornerRadius, clampedSize(radius));
}

void TovuBoxLook::paint(QPainter &painter, const QRectF &rect) const
{
    TovuPainting::paintBox(painter, rect, resolvedBackground(), resolvedBorder(), borderWidth, cornerRadius);
}
