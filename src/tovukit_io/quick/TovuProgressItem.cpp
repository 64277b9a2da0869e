#include <tovukit_io/quick/TovuProgressItem.h>

#include "TovuQuickAccessibleParts.h"

#include <tovukit_io/viewmodel/TovuProgressViewModel.h>

#include <QAccessibleObject>
#include <QAccessibleValueInterface>
#include <QQuickWindow>

namespace {

class ProgressInterface : public QAccessibleObject, public QAccessibleValueInterface
{
public:
    explicit ProgressInterface(TovuProgressItem *item)
        : QAccessibleObject(item)
    { }

    TovuProgressItem *item() const { return static_cast<TovuProgressItem *>(object()); }
    const TovuProgressViewModel *progress() const { return item() ? item()->progress() : nullptr; }

    QWindow *window() const override { return item() ? item()->window() : nullptr; }
    QAccessibleInterface *parent() const override { return TovuQuickAccessibleParts::parentOf(item()); }
    QAccessibleInterface *child(int) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface *) const override { return -1; }
    QRect rect() const override
    {
        return item() ? TovuQuickAccessibleParts::onScreen(item(), item()->boundingRect()) : QRect();
    }
    QAccessible::Role role() const override { return QAccessible::ProgressBar; }

    QString text(QAccessible::Text t) const override
    {
        if (!progress())
            return {};
        if (t == QAccessible::Name)
            return progress()->accessibleName();
        return t == QAccessible::Value ? progress()->text() : QString();
    }

    QAccessible::State state() const override
    {
        QAccessible::State state;
        state.invisible = !item() || !item()->isVisible() || !progress() || !progress()->isShown();
        return state;
    }

    void *interface_cast(QAccessible::InterfaceType type) override
    {
        return type == QAccessible::ValueInterface ? static_cast<QAccessibleValueInterface *>(this) : nullptr;
    }

    QVariant currentValue() const override { return progress() ? progress()->current() : 0; }
    void setCurrentValue(const QVariant &) override { } // shown, never set by a reader
    QVariant maximumValue() const override { return progress() ? progress()->total() : 0; }
    QVariant minimumValue() const override { return 0; }
    QVariant minimumStepSize() const override { return 1; }
};

QAccessibleInterface *progressFactory(const QString &, QObject *object)
{
    auto *item = qobject_cast<TovuProgressItem *>(object);
    return item ? new ProgressInterface(item) : nullptr;
}

} // namespace

TovuProgressItem::TovuProgressItem(QQuickItem *parent)
    : QQuickItem(parent)
{
    // Factories are asked last-installed first: be after Qt Quick's, whenever it came.
    QAccessible::removeFactory(progressFactory);
    QAccessible::installFactory(progressFactory);
}

void TovuProgressItem::setProgress(TovuProgressViewModel *progress)
{
    if (progress == m_progress)
        return;
    disconnect(m_connection);
    m_progress = progress;
    if (progress)
        m_connection = connect(progress, &TovuProgressViewModel::changed, this, &TovuProgressItem::announce);
    Q_EMIT progressChanged();
}

void TovuProgressItem::announce()
{
    if (!m_progress || !m_progress->isShown())
        return;
    QAccessibleEvent named(this, QAccessible::NameChanged);
    QAccessible::updateAccessibility(&named);
    QAccessibleValueChangeEvent value(this, m_progress->current());
    QAccessible::updateAccessibility(&value);
}
