#pragma once

class QWidget;

/// A sheet of widget-kit samples for people to look at: boxes, buttons with
/// their marks, a right-to-left row, a wrapped option, every symbol, text inputs,
/// symbol buttons, emoji faces, the dropdown chevron, equal-width and scrolling
/// rows, fitted captions and hairlines.
class TovuKitSampleSheet
{
public:
    /// A new top-level widget, laid out at its final size; the caller owns it.
    static QWidget *build();
};
