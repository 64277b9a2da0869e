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
/// theme.showsProgress = true;
/// TovuThemeEngine::shared().configureAppTheme(theme);
/// \endcode
struct TovuAppTheme {
    std::optional<QColor> primaryColor; ///< accent: buttons, selection marks, highlights
    std::optional<QColor> backgroundColor; ///< sheet background
    std::optional<QColor> textColor; ///< titles, options and labels
    std::optional<QString> fontFamily; ///< family for all text
    std::optional<qreal> cornerRadius; ///< of the sheet, in points
    /// Off by default. On, the sheet shows on each question page which question of how
    /// many it is ("3 of 7", a thin bar in the primary colour); the intro and thank-you
    /// pages show none. Screen readers hear "Question 3 of 7".
    bool showsProgress = false;

    friend bool operator==(const TovuAppTheme &, const TovuAppTheme &) = default;
};
