#include "TovuButtonKeys.h"

#include <tovukit_io/ui/kit/TovuButton.h>

#include <algorithm>

TovuButton *TovuButtonKeys::neighbour(const TovuButton &from, int key)
{
    const bool across = key == Qt::Key_Left || key == Qt::Key_Right;
    const bool rightToLeft = from.layoutDirection() == Qt::RightToLeft;
    const bool forward = key == Qt::Key_Down || key == (rightToLeft ? Qt::Key_Left : Qt::Key_Right);
    QList<TovuButton *> group;
    for (QObject *child : from.parent() ? from.parent()->children() : QObjectList()) {
        auto *button = qobject_cast<TovuButton *>(child);
        if (!button || !button->isVisible() || !button->isEnabled() || button->focusPolicy() == Qt::NoFocus)
            continue;
        if (button->isCheckable() != from.isCheckable() || button->accessory() != from.accessory())
            continue;
        // One row shares its top edge, one column its leading edge.
        if (across ? button->y() != from.y() : button->x() != from.x())
            continue;
        group.append(button);
    }
    std::ranges::sort(group, [across, rightToLeft](const TovuButton *a, const TovuButton *b) {
        if (!across)
            return a->y() < b->y();
        return rightToLeft ? a->x() > b->x() : a->x() < b->x();
    });
    const qsizetype at = group.indexOf(const_cast<TovuButton *>(&from));
    const qsizetype next = at + (forward ? 1 : -1);
    return at >= 0 && next >= 0 && next < group.size() ? group[next] : nullptr;
}
