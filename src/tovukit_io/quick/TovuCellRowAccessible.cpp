#include "TovuCellRowAccessible.h"

#include "TovuQuickAccessibleParts.h"

#include <tovukit_io/quick/TovuCellRowItem.h>

#include <QAccessibleActionInterface>
#include <QAccessibleObject>
#include <QPointer>
#include <QQuickWindow>

#include <vector>

namespace {

class CellInterface : public QAccessibleInterface, public QAccessibleActionInterface
{
public:
    CellInterface(TovuCellRowItem *row, int index)
        : m_row(row)
        , m_index(index)
    { }

    // The row while this cell is in it; null once the row is gone or shorter.
    TovuCellRowItem *row() const
    {
        TovuCellRowItem *row = m_row.data();
        return row && m_index < row->cellCount() ? row : nullptr;
    }

    bool isValid() const override { return row() != nullptr; }
    // None of its own: the accessibility cache maps each object to one interface, the row's.
    QObject *object() const override { return nullptr; }
    QWindow *window() const override
    {
        const TovuCellRowItem *row = this->row();
        return row ? row->window() : nullptr;
    }
    QAccessibleInterface *parent() const override { return QAccessible::queryAccessibleInterface(m_row.data()); }
    QAccessibleInterface *child(int) const override { return nullptr; }
    QAccessibleInterface *childAt(int, int) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface *) const override { return -1; }

    QString text(QAccessible::Text t) const override
    {
        const TovuCellRowItem *row = this->row();
        if (!row)
            return {};
        switch (t) {
        case QAccessible::Name:
            return row->cellName(m_index);
        case QAccessible::Description:
            return row->cellDescription(m_index);
        default:
            return {};
        }
    }
    void setText(QAccessible::Text, const QString &) override { }
    QRect rect() const override
    {
        const TovuCellRowItem *row = this->row();
        return row ? TovuQuickAccessibleParts::onScreen(row, row->cellRect(m_index)) : QRect();
    }
    QAccessible::Role role() const override
    {
        const TovuCellRowItem *row = this->row();
        return row ? row->cellRole() : QAccessible::NoRole;
    }

    QAccessible::State state() const override
    {
        QAccessible::State state;
        const TovuCellRowItem *row = this->row();
        if (!row || !row->isVisible()) {
            state.invisible = true;
            return state;
        }
        state.focusable = true;
        state.focused = row->hasActiveFocus() && row->currentIndex() == m_index;
        state.checkable = row->isCellCheckable();
        state.checked = state.checkable && row->isCellChecked(m_index);
        // A chosen score is no check box, but a screen reader should hear it is the one.
        state.selected = row->isCellChecked(m_index);
        state.selectable = true;
        return state;
    }

    void *interface_cast(QAccessible::InterfaceType type) override
    {
        return type == QAccessible::ActionInterface ? static_cast<QAccessibleActionInterface *>(this) : nullptr;
    }

    QStringList actionNames() const override
    {
        QStringList names{pressAction(), setFocusAction()};
        const TovuCellRowItem *row = this->row();
        if (row && row->isCellCheckable())
            names.append(toggleAction());
        return names;
    }

    void doAction(const QString &name) override
    {
        TovuCellRowItem *row = this->row();
        if (!row)
            return;
        if (name == setFocusAction())
            row->forceActiveFocus(Qt::OtherFocusReason);
        else if (name == pressAction() || name == toggleAction())
            row->tap(m_index);
    }

    QStringList keyBindingsForAction(const QString &) const override { return {}; }

private:
    QPointer<TovuCellRowItem> m_row;
    int m_index;
};

class RowInterface : public QAccessibleObject
{
public:
    explicit RowInterface(TovuCellRowItem *row)
        : QAccessibleObject(row)
    { }

    ~RowInterface() override
    {
        for (const QAccessible::Id id : m_cellIds)
            QAccessible::deleteAccessibleInterface(id);
    }

    TovuCellRowItem *row() const { return static_cast<TovuCellRowItem *>(object()); }

    QWindow *window() const override { return row() ? row()->window() : nullptr; }

    QAccessibleInterface *parent() const override { return TovuQuickAccessibleParts::parentOf(row()); }

    int childCount() const override { return row() ? row()->cellCount() : 0; }

    QAccessibleInterface *child(int index) const override
    {
        if (index < 0 || index >= childCount())
            return nullptr;
        while (static_cast<int>(m_cellIds.size()) <= index) {
            auto *cell = new CellInterface(row(), static_cast<int>(m_cellIds.size()));
            m_cellIds.push_back(QAccessible::registerAccessibleInterface(cell));
        }
        return QAccessible::accessibleInterface(m_cellIds[static_cast<std::size_t>(index)]);
    }

    int indexOfChild(const QAccessibleInterface *child) const override
    {
        for (int index = 0; index < childCount(); ++index) {
            if (this->child(index) == child)
                return index;
        }
        return -1;
    }

    QAccessibleInterface *childAt(int x, int y) const override
    {
        for (int index = 0; index < childCount(); ++index) {
            if (child(index)->rect().contains(x, y))
                return child(index);
        }
        return nullptr;
    }

    QString text(QAccessible::Text) const override { return {}; }
    QRect rect() const override
    {
        return row() ? TovuQuickAccessibleParts::onScreen(row(), row()->boundingRect()) : QRect();
    }
    QAccessible::Role role() const override { return QAccessible::Row; }

    QAccessible::State state() const override
    {
        QAccessible::State state;
        state.invisible = !row() || !row()->isVisible();
        return state;
    }

private:
    mutable std::vector<QAccessible::Id> m_cellIds;
};

QAccessibleInterface *rowFactory(const QString &, QObject *object)
{
    if (auto *row = qobject_cast<TovuCellRowItem *>(object))
        return new RowInterface(row);
    return nullptr;
}

QAccessibleInterface *cellOf(TovuCellRowItem *row, int index)
{
    if (!QAccessible::isActive() || !row || index < 0 || index >= row->cellCount())
        return nullptr;
    QAccessibleInterface *rowInterface = QAccessible::queryAccessibleInterface(row);
    return rowInterface ? rowInterface->child(index) : nullptr;
}

} // namespace

void TovuCellRowAccessible::install()
{
    // Factories asked last-installed first: be after Qt Quick's, whenever it came.
    QAccessible::removeFactory(rowFactory);
    QAccessible::installFactory(rowFactory);
}

void TovuCellRowAccessible::notifyStateChanged(TovuCellRowItem *row)
{
    for (int index = 0; row && index < row->cellCount(); ++index) {
        QAccessibleInterface *cell = cellOf(row, index);
        if (!cell)
            return;
        QAccessible::State changed;
        changed.checked = true;
        QAccessibleStateChangeEvent event(cell, changed);
        QAccessible::updateAccessibility(&event);
    }
}

void TovuCellRowAccessible::notifyFocus(TovuCellRowItem *row, int index)
{
    if (QAccessibleInterface *cell = cellOf(row, index)) {
        QAccessibleEvent event(cell, QAccessible::Focus);
        QAccessible::updateAccessibility(&event);
    }
}
