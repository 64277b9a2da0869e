#pragma once

class QWidget;

/// A sheet of widget-kit samples for people to look at: boxes, buttons with
/// their marks, a right-to-left row, a wrapped option and every symbol.
class TovuKitSampleSheet
{
public:
    /// A new top-level widget, laid out at its final size; the caller owns it.
    static QWidget *build();
};
