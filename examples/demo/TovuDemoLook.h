#pragma once

#include "TovuDemoOptions.h"

#include <tovukit_io/viewmodel/TovuAppTheme.h>

#include <QColor>
#include <QPalette>

class TovuNativeSurveyManager;

/// The demo's appearance: light or dark for the whole application (the
/// library picks its platform colours from the application palette) and the
/// host theme it hands the library, as a host app would.
class TovuDemoLook
{
public:
    /// Fresh Basket's brand green, the demo app's accent.
    static QColor brandColor(bool dark);
    static QPalette palette(bool dark);
    /// The host app's theme: its colours, a rounder sheet and its font.
    static TovuAppTheme hostTheme(bool dark);
    /// Sets the application palette and configures the manager's theme.
    static void apply(TovuNativeSurveyManager &manager, bool dark, TovuDemoOptions::Theme theme,
                      const QColor &primaryColor);
    /// Whether the application palette is dark right now.
    static bool isDark();

    TovuDemoLook() = delete;
};
