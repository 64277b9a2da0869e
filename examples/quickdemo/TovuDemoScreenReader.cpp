#include "TovuDemoScreenReader.h"

#include "TovuDemoInput.h"

#include <QQuickItem>
#include <QQuickWindow>

#include <functional>

namespace {

using Match = std::function<bool(QAccessibleInterface *)>;

// Depth first, as a screen reader reads; what it does not see is not searched.
QAccessibleInterface *search(QAccessibleInterface *node, const Match &matches)
{
    if (!node || node->state().invisible)
        return nullptr;
    if (matches(node))
        return node;
    for (int i = 0; i < node->childCount(); ++i) {
        if (QAccessibleInterface *found = search(node->child(i), matches))
            return found;
    }
    return nullptr;
}

// Items a screen reader does not see themselves are looked through.
QAccessibleInterface *searchBelow(QQuickItem *item, const Match &matches)
{
    if (QAccessibleInterface *node = QAccessible::queryAccessibleInterface(item))
        return search(node, matches);
    for (QQuickItem *child : item->childItems()) {
        if (QAccessibleInterface *found = searchBelow(child, matches))
            return found;
    }
    return nullptr;
}

// Where `node` is in its window's scene.
QRectF inScene(const QQuickWindow *window, const QAccessibleInterface *node)
{
    const QRect onScreen = node->rect();
    return {QPointF(window->mapFromGlobal(onScreen.topLeft())), QSizeF(onScreen.size())};
}

// How far a view of `size` must move so that `low`..`high` shows: its start first.
qreal shiftToShow(qreal low, qreal high, qreal size)
{
    if (high > size)
        return low - (high - size) < 0 ? low : high - size;
    return low < 0 ? low : 0.0;
}

} // namespace

bool TovuDemoScreenReader::isShown(const QQuickItem *item)
{
    return item && item->window() && item->isVisible() && item->width() > 0 && item->height() > 0;
}

QQuickItem *TovuDemoScreenReader::itemOf(QAccessibleInterface *node)
{
    for (; node; node = node->parent()) {
        if (auto *item = qobject_cast<QQuickItem *>(node->object()))
            return item;
    }
    return nullptr;
}

QAccessibleInterface *TovuDemoScreenReader::find(QQuickItem *root, QAccessible::Role role, const QString &name,
                                                 const QString &description)
{
    if (!root || name.isEmpty())
        return nullptr;
    QAccessibleInterface *found = searchBelow(root, [&](QAccessibleInterface *node) {
        return node->role() == role && node->text(QAccessible::Name) == name
            && (description.isEmpty() || node->text(QAccessible::Description) == description);
    });
    if (!found || found->state().disabled || found->rect().isEmpty())
        return nullptr;
    const QQuickItem *drawn = itemOf(found);
    return isShown(drawn) && drawn->isEnabled() ? found : nullptr;
}

void TovuDemoScreenReader::click(QAccessibleInterface *node)
{
    QQuickItem *item = itemOf(node);
    QQuickWindow *window = item ? item->window() : nullptr;
    if (!window)
        return;
    for (QQuickItem *view = item->parentItem(); view; view = view->parentItem()) {
        if (!view->inherits("QQuickFlickable"))
            continue;
        const QRectF place = view->mapRectFromScene(inScene(window, node));
        if (const qreal dy = shiftToShow(place.top(), place.bottom(), view->height()); dy != 0)
            view->setProperty("contentY", view->property("contentY").toReal() + dy);
        if (const qreal dx = shiftToShow(place.left(), place.right(), view->width()); dx != 0)
            view->setProperty("contentX", view->property("contentX").toReal() + dx);
    }
    const QPointF centre = inScene(window, node).center();
    TovuDemoInput::click(window, centre, window->mapToGlobal(centre));
}
