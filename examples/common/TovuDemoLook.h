#pragma once

#include "TovuDemoOptions.h"

#include <tovukit_io/viewmodel/TovuAppTheme.h>

#include <QColor>
#include <QPalette>

class TovuNativeSurveyManager;

/// The demo's appearance: light or dark for the whole application (the
/// library picks its platform colours from the application palette), the
/// host theme it hands the library, as a host app would, and the colours of
/// the host app's own screen.
class TovuDemoLook
{
public:
    /// The colours Fresh Basket's home screen is drawn with.
    struct HostColors {
        QColor background, text, secondary, card, separator, brand, onBrand, alert;
    };

    /// Fresh Basket's brand green, the demo app's accent.
    static QColor brandColor(bool dark);
    /// `light` (the toolkit's own light palette) with the brand accent, or the dark palette.
    static QPalette palette(bool dark, const QPalette &light);
    /// The host app's theme: its colours, a rounder sheet and its font.
    static TovuAppTheme hostTheme(bool dark);
    static HostColors hostColors(bool dark);
    /// Sets the application palette (from `light` or the dark one) and configures the manager's theme.
    static void apply(TovuNativeSurveyManager &manager, bool dark, TovuDemoOptions::Theme theme,
                      const QColor &primaryColor, const QPalette &light);
    /// Whether the application palette is dark right now.
    static bool isDark();
    /// Turns the sheet's progress indicator on or off, keeping the rest of the theme;
    /// apply() keeps the choice too.
    static void setShowsProgress(TovuNativeSurveyManager &manager, bool shows);
    static bool showsProgress();

    TovuDemoLook() = delete;
};
