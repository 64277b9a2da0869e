#include "TovuQuickAccessibleParts.h"

#include <QAccessible>
#include <QQuickItem>
#include <QQuickWindow>

QRect TovuQuickAccessibleParts::onScreen(const QQuickItem *item, const QRectF &rect)
{
    if (!item->window())
        return {};
    const QRectF inScene = item->mapRectToScene(rect);
    return QRect(item->window()->mapToGlobal(inScene.topLeft().toPoint()), inScene.size().toSize());
}

QAccessibleInterface *TovuQuickAccessibleParts::parentOf(const QQuickItem *item)
{
    for (QQuickItem *parent = item ? item->parentItem() : nullptr; parent; parent = parent->parentItem()) {
        QAccessibleInterface *candidate = QAccessible::queryAccessibleInterface(parent);
        if (candidate && candidate->role() != QAccessible::Client)
            return candidate;
    }
    return item && item->window() ? QAccessible::queryAccessibleInterface(item->window()) : nullptr;
}
