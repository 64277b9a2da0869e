#include <tovukit_io/viewmodel/TovuPlatformColors.h>

#include <QGuiApplication>
#include <QPalette>

#include <array>
#include <cstddef>

namespace {

struct ColorPair {
    QRgb light;
    QRgb dark;
};

// In Role order; alpha first where a colour is translucent.
constexpr std::array<ColorPair, 12> table{{
    {0xFF000000, 0xFFFFFFFF}, // label
    {0x993C3C43, 0x99EBEBF5}, // secondary label
    {0xFFFFFFFF, 0xFF000000}, // system background
    {0xFF8E8E93, 0xFF8E8E93}, // gray
    {0xFFAEAEB2, 0xFF636366}, // gray 2
    {0xFFC7C7CC, 0xFF48484A}, // gray 3
    {0xFFD1D1D6, 0xFF3A3A3C}, // gray 4
    {0xFFE5E5EA, 0xFF2C2C2E}, // gray 5
    {0xFFF2F2F7, 0xFF1C1C1E}, // gray 6
    {0xFFFF3B30, 0xFFFF453A}, // red
    {0xFF007AFF, 0xFF0A84FF}, // blue
    {0xFFFF9500, 0xFFFF9F0A}, // orange
}};

} // namespace

QColor TovuPlatformColors::color(Role role, bool dark)
{
    const ColorPair &pair = table[static_cast<std::size_t>(role)];
    return QColor::fromRgba(dark ? pair.dark : pair.light);
}

QColor TovuPlatformColors::color(Role role)
{
    return color(role, isDark());
}

bool TovuPlatformColors::isDark()
{
    if (!qGuiApp)
        return false;
    return QGuiApplication::palette().color(QPalette::Window).lightness() < 128;
}
