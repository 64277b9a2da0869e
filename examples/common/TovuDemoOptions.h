#pragma once

#include <QColor>
#include <QString>
#include <QStringList>

#include <cstdint>
#include <expected>

/// What the command line asks of a demo program (tovu-demo, tovu-quickdemo).
///
/// \code
/// const auto options = TovuDemoOptions::parse({"--autoplay", "--survey", "onboarding"});
/// if (!options)
///     std::fprintf(stderr, "tovu-demo: %s\n", qPrintable(options.error())); // one line
/// \endcode
///
/// Options are double-dash (`--survey ID` or `--survey=ID`); single-dash
/// arguments (`-platform xcb`, with the value after them) are left for the
/// application object, except `-h`.
class TovuDemoOptions
{
public:
    /// How the sheet looks beyond light or dark.
    enum class Theme {
        survey, ///< the survey's own theme and the platform look
        host, ///< the demo app's brand: TovuAppTheme with colours, font and corner radius
        primaryColor, ///< only the accent, configureTheme(QColor)
    };

    bool help = false;
    /// Play the survey by itself and exit (also chosen when there is no display).
    bool autoplay = false;
    /// Go offline before submitting, then come back online so the queue is flushed.
    bool offlineFirst = false;
    bool dark = false;
    Theme theme = Theme::survey;
    QColor primaryColor; ///< for Theme::primaryColor
    /// The sheet shows which question of how many is on screen (TovuAppTheme::showsProgress).
    bool progress = false;
    /// A sample's file name without ".json", its survey id or its collector id;
    /// empty for the sample with every question type.
    QString survey;
    QString screenshotsDir = QStringLiteral("demo-screenshots");
    /// Screenshots with a 256-colour palette: about a third of the size.
    bool paletteScreenshots = false;
    /// Port of the local backend; 0 picks a free one.
    std::uint16_t port = 0;
    /// Echo the library's console lines to standard output.
    bool verbose = false;
    /// Arguments for the application object (program name first).
    QStringList qtArguments;

    /// `arguments` without the program name. The error is one line, without a prefix.
    static std::expected<TovuDemoOptions, QString> parse(const QStringList &arguments,
                                                         const QString &program = QStringLiteral("tovu-demo"));
    static QString usage(const QString &program = QStringLiteral("tovu-demo"));
    /// Whether no display is there to open a window on: the Qt platform is
    /// offscreen or minimal, or (on Linux) neither DISPLAY nor WAYLAND_DISPLAY
    /// is set and no platform was chosen.
    static bool isHeadless();
};
