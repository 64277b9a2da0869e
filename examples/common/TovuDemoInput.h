#pragma once

#include <QPointF>
#include <QString>

class QObject;

/// Clicks and keystrokes as a person makes them: mouse presses and releases
/// and key events sent to a widget or a window, so they take the same path as
/// real input (the button's press, release and click; the field's key handling).
class TovuDemoInput
{
public:
    /// A left click at `position` in `receiver` (a widget, or a window for its
    /// scene), which is `global` on the screen.
    static void click(QObject *receiver, const QPointF &position, const QPointF &global);
    /// Types `text` into `receiver`: a widget that takes key events (a line edit,
    /// a text area), or a window, which hands them to its focused item.
    static void type(QObject *receiver, const QString &text);

    TovuDemoInput() = delete;
};
