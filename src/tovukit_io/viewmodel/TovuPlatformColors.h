#pragma once

#include <QColor>

/// The platform's adaptive colours, where a theme gives none: a fixed light
/// and a fixed dark table, chosen by the application palette's lightness.
///
/// \code
/// QColor handle = TovuPlatformColors::color(TovuPlatformColors::Role::gray4);
/// \endcode
class TovuPlatformColors
{
public:
    enum class Role {
        label,
        secondaryLabel,
        systemBackground,
        gray,
        gray2,
        gray3,
        gray4,
        gray5,
        gray6,
        red,
        blue,
        orange,
    };

    /// The colour of `role` for the application's current appearance.
    static QColor color(Role role);
    /// The colour of `role` in the light or the dark table.
    static QColor color(Role role, bool dark);
    /// Whether the application palette is dark (its window colour has a lightness below one half).
    static bool isDark();

    TovuPlatformColors() = delete;
};
