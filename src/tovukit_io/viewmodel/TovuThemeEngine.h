#pragma once

#include <tovukit_io/model/TovuSurvey.h>
#include <tovukit_io/viewmodel/TovuAppTheme.h>

#include <QColor>
#include <QFont>

#include <map>
#include <optional>
#include <string_view>

class QObject;
class QPalette;

/// Where every native view gets its colours, fonts and corner radius.
///
/// Holds the survey's theme (`apiTheme`) and the host app's (`appTheme`).
/// Each value is resolved on every read: the app's setting wins, then the
/// survey's, then the platform's default for the current light or dark look.
/// Views read the engine while they build, so a change shows in views built
/// afterwards. Main thread only.
///
/// \code
/// TovuThemeEngine &theme = TovuThemeEngine::shared();
/// theme.configureAppTheme(QColor(0x6A, 0x1B, 0x9A));
/// QFont title = theme.font(18, QFont::Bold);
/// \endcode
class TovuThemeEngine
{
public:
    /// The process-wide engine; both themes absent until set.
    static TovuThemeEngine &shared();
    /// A separate engine, for tests.
    TovuThemeEngine();

    /// Replaces the survey's theme; nullopt clears it.
    void setTheme(std::optional<TovuTheme> theme);
    const std::optional<TovuTheme> &apiTheme() const;

    /// Replaces the app theme whole.
    void configureAppTheme(TovuAppTheme theme);
    /// Sets only the app theme's primary colour, keeping its other fields;
    /// creates an app theme holding just this colour when there is none.
    void configureAppTheme(QColor primaryColor);
    const std::optional<TovuAppTheme> &appTheme() const;

    /// Default: the accent the focused window's palette sets, else the platform blue.
    QColor primaryColor() const;
    /// The accent for a page shown with `context`, the palette it inherits from its
    /// host window: the app's, else the survey's, else the Highlight the host set
    /// explicitly, else the platform blue of the current appearance.
    QColor primaryColor(const QPalette &context) const;
    /// The accent for `page` (a widget or a Qt Quick item): as above, with the Highlight
    /// that `page` or the nearest ancestor in its window set explicitly. Qt hands a
    /// parent's colours down to its children but not the mark of which were set on
    /// purpose, so the search looks where they were set.
    QColor primaryColor(const QObject *page) const;
    /// Default: the platform's system background.
    QColor backgroundColor() const;
    /// Default: the platform's label colour.
    QColor textColor() const;

    /// `size` scaled by the survey's fontSizeBase (relative to 16). A family the
    /// app or the survey names is used in its regular face when installed;
    /// otherwise the system font with `weight`.
    QFont font(qreal size, QFont::Weight weight) const;

    /// The app's radius, else the survey's, else 12.
    qreal cornerRadius() const;
    /// Gives `view` the resolved radius and makes it clip to its bounds, through its
    /// `cornerRadius` and `clipsToBounds` properties (a kit box, or a Qt Quick item).
    void applyCornerRadius(QObject *view) const;

    /// Colour text, six (RRGGBB) or eight (RRGGBBAA) characters after an optional
    /// '#', to an sRGB colour; any other length gives none. Lenient on purpose:
    /// the length counts characters, not digits, and the value is the digits read
    /// before the first non-hex character, so "#12GG56" is (0, 0, 0x12).
    static std::optional<QColor> colorFromHex(std::string_view text);

private:
    QFont makeFont(qreal size, QFont::Weight weight) const;

    std::optional<TovuTheme> m_apiTheme;
    std::optional<TovuAppTheme> m_appTheme;
    // Made for the current themes: size and weight to font.
    mutable std::map<std::pair<qreal, int>, QFont> m_fonts;
};
