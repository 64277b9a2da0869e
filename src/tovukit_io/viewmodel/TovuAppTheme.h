#pragma once

#include <QColor>
#include <QString>
#include <QtGlobal>

#include <optional>

/// The host app's own theme. Every field is optional: whatever it leaves out
/// falls back to the survey's theme, then to the platform's look.
///
/// \code
/// TovuAppTheme theme;
/// theme.primaryColor = QColor(0x6A, 0x1B, 0x9A);
/// theme.cornerRadius = 20;
/// TovuThemeEngine::shared().configureAppTheme(theme);
/// \endcode
struct TovuAppTheme {
    std::optional<QColor> primaryColor; ///< accent: buttons, selection marks, highlights
    std::optional<QColor> backgroundColor; ///< sheet background
    std::optional<QColor> textColor; ///< titles, options and labels
    std::optional<QString> fontFamily; ///< family for all text
    std::optional<qreal> cornerRadius; ///< of the sheet, in points

    friend bool operator==(const TovuAppTheme &, const TovuAppTheme &) = default;
};
