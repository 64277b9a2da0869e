#pragma once

#include <QString>

class QWidget;

/// Clicks and keystrokes as a person makes them: mouse presses and releases
/// and key events sent to the widget, so they take the same path as real
/// input (the button's press, release and click; the field's key handling).
class TovuDemoInput
{
public:
    /// A left click in the middle of `widget`.
    static void click(QWidget *widget);
    /// Types `text` into `widget`, which must take key events (a line edit, a text area).
    static void type(QWidget *widget, const QString &text);

    TovuDemoInput() = delete;
};
