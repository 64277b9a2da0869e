#include "TovuButtonAccessible.h"

#include <tovukit_io/ui/kit/TovuButton.h>

#include <QAccessibleWidget>

namespace {

class ButtonInterface : public QAccessibleWidget
{
public:
    explicit ButtonInterface(TovuButton *button)
        : QAccessibleWidget(button, QAccessible::Button)
    { }

    TovuButton *button() const { return static_cast<TovuButton *>(widget()); }

    QAccessible::Role role() const override
    {
        if (button()->accessory() == TovuButton::Accessory::radio)
            return QAccessible::RadioButton;
        return button()->isCheckable() ? QAccessible::CheckBox : QAccessible::Button;
    }

    QString text(QAccessible::Text t) const override
    {
        const QString text = QAccessibleWidget::text(t);
        return t == QAccessible::Name && text.isEmpty() ? button()->text() : text;
    }

    QAccessible::State state() const override
    {
        QAccessible::State state = QAccessibleWidget::state();
        state.checkable = button()->isCheckable();
        state.checked = button()->isCheckable() && button()->isChecked();
        state.pressed = button()->isDown();
        return state;
    }

    QStringList actionNames() const override
    {
        QStringList names = QAccessibleWidget::actionNames();
        names.prepend(pressAction());
        if (button()->isCheckable())
            names.append(toggleAction());
        return names;
    }

    void doAction(const QString &name) override
    {
        // The page listens to clicks: an action is a click, whatever its name.
        if ((name == pressAction() || name == toggleAction()) && button()->isEnabled())
            button()->click();
        else
            QAccessibleWidget::doAction(name);
    }
};

QAccessibleInterface *buttonFactory(const QString &, QObject *object)
{
    auto *button = qobject_cast<TovuButton *>(object);
    return button && object->isWidgetType() ? new ButtonInterface(button) : nullptr;
}

} // namespace

void TovuButtonAccessible::install()
{
    static const bool installed = [] {
        QAccessible::installFactory(buttonFactory);
        return true;
    }();
    Q_UNUSED(installed);
}
