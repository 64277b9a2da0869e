#pragma once

#include <QRect>

class QAccessibleInterface;
class QQuickItem;

// What the module's own accessible interfaces of Qt Quick items share. Internal to the module.
class TovuQuickAccessibleParts
{
public:
    /// `rect`, in `item`'s coordinates, on the screen; empty without a window.
    static QRect onScreen(const QQuickItem *item, const QRectF &rect);
    /// The nearest ancestor of `item` a screen reader sees, as Qt Quick's own items report
    /// theirs; else the window's interface.
    static QAccessibleInterface *parentOf(const QQuickItem *item);

    TovuQuickAccessibleParts() = delete;
};
