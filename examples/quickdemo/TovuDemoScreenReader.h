#pragma once

#include <QAccessible>
#include <QString>

class QQuickItem;
class QQuickWindow;

/// Finds the controls of a Qt Quick scene as a screen reader does, by their
/// accessible role and name, and clicks them as a finger would: scrolled into
/// view, with a press and a release in their middle sent to the window. A
/// control may be an item of its own or a cell that a row item draws (an
/// accessible node without an object); either way it is where the screen
/// reader says it is.
///
/// \code
/// if (QAccessibleInterface *next = TovuDemoScreenReader::find(page, QAccessible::Button, "Next →"))
///     TovuDemoScreenReader::click(next);
/// \endcode
class TovuDemoScreenReader
{
public:
    /// The first node below `root`, depth first, with `role` and `name` (and
    /// `description`, when given) that is on screen and takes input; null when none is.
    static QAccessibleInterface *find(QQuickItem *root, QAccessible::Role role, const QString &name,
                                      const QString &description = {});
    /// Scrolls every view that clips `node` so that all of it shows, then clicks its middle.
    static void click(QAccessibleInterface *node);
    /// The item that draws `node`: its own, or for a cell a row draws, the row.
    static QQuickItem *itemOf(QAccessibleInterface *node);
    /// Whether `item` is in a window, visible and not empty.
    static bool isShown(const QQuickItem *item);

    TovuDemoScreenReader() = delete;
};
