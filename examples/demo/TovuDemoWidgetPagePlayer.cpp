#include "TovuDemoWidgetPagePlayer.h"

#include "TovuDemoInput.h"

#include <tovukit_io/ui/TovuDropdownQuestionView.h>
#include <tovukit_io/ui/TovuIntroView.h>
#include <tovukit_io/ui/TovuMultiNPSQuestionView.h>
#include <tovukit_io/ui/TovuMultiRatingQuestionView.h>
#include <tovukit_io/ui/TovuMultipleChoiceQuestionView.h>
#include <tovukit_io/ui/TovuNPSQuestionView.h>
#include <tovukit_io/ui/TovuRatingQuestionView.h>
#include <tovukit_io/ui/TovuSingleChoiceQuestionView.h>
#include <tovukit_io/ui/TovuTextBoxQuestionView.h>
#include <tovukit_io/ui/TovuThankYouView.h>
#include <tovukit_io/ui/TovuToasterView.h>
#include <tovukit_io/ui/kit/TovuButton.h>
#include <tovukit_io/ui/kit/TovuTextArea.h>
#include <tovukit_io/ui/kit/TovuTextField.h>
#include <tovukit_io/viewmodel/TovuIntroViewModel.h>
#include <tovukit_io/viewmodel/TovuQuestionViewModel.h>
#include <tovukit_io/viewmodel/TovuThankYouViewModel.h>

#include <QLayout>
#include <QScrollArea>

#include <algorithm>
#include <array>

using Kind = TovuDemoPagePlayer::Control::Kind;

namespace {

// What `page` answers to `get`, when it is a `View`.
template<typename View, typename Get>
QWidget *from(QWidget *page, Get get)
{
    auto *view = qobject_cast<View *>(page);
    return view ? get(view) : nullptr;
}

// The button that leaves a question page, whichever name its view gives it.
QWidget *actionButton(QWidget *page)
{
    const std::array<QWidget *, 8> buttons{
        from<TovuSingleChoiceQuestionView>(page, [](auto *v) { return v->nextButton(); }),
        from<TovuMultipleChoiceQuestionView>(page, [](auto *v) { return v->nextButton(); }),
        from<TovuDropdownQuestionView>(page, [](auto *v) { return v->nextButton(); }),
        from<TovuTextBoxQuestionView>(page, [](auto *v) { return v->submitButton(); }),
        from<TovuNPSQuestionView>(page, [](auto *v) { return v->actionButton(); }),
        from<TovuMultiNPSQuestionView>(page, [](auto *v) { return v->actionButton(); }),
        from<TovuRatingQuestionView>(page, [](auto *v) { return v->actionButton(); }),
        from<TovuMultiRatingQuestionView>(page, [](auto *v) { return v->actionButton(); }),
    };
    const auto found = std::ranges::find_if(buttons, [](const QWidget *button) { return button != nullptr; });
    return found == buttons.end() ? nullptr : *found;
}

QWidget *optionRow(QWidget *page, int index)
{
    if (QWidget *row
        = from<TovuSingleChoiceQuestionView>(page, [index](auto *v) { return v->optionRows().value(index); }))
        return row;
    return from<TovuMultipleChoiceQuestionView>(page, [index](auto *v) { return v->optionButtons().value(index); });
}

QWidget *scoreButton(QWidget *page, int score, int row)
{
    if (row < 0)
        return from<TovuNPSQuestionView>(page, [score](auto *v) { return v->npsButtons().value(score); });
    return from<TovuMultiNPSQuestionView>(page,
                                          [score, row](auto *v) { return v->scoreButtons().value(row).value(score); });
}

QWidget *followUpOption(QWidget *page, const QString &id)
{
    return from<TovuNPSQuestionView>(page, [&id](TovuNPSQuestionView *v) -> QWidget * {
        for (TovuButton *button : v->followUpOptionButtons()) {
            if (button->objectName() == id)
                return button;
        }
        return nullptr;
    });
}

QWidget *ratingCell(QWidget *page, const QString &id, int position)
{
    const std::string rowId = id.section(QStringLiteral("::"), 0, 0).toStdString();
    return from<TovuMultiRatingQuestionView>(page, [&rowId, position](auto *v) -> QWidget * {
        const auto found = v->rowButtons().find(rowId);
        return found == v->rowButtons().end() ? nullptr : found->second.value(position - 1);
    });
}

} // namespace

TovuDemoWidgetPagePlayer::TovuDemoWidgetPagePlayer(std::function<TovuToasterView *()> sheet, QWidget *screen,
                                                   QObject *parent)
    : TovuDemoPagePlayer(parent)
    , m_sheet(std::move(sheet))
    , m_screen(screen)
{ }

QObject *TovuDemoWidgetPagePlayer::shownPage() const
{
    const TovuToasterView *sheet = m_sheet ? m_sheet() : nullptr;
    if (!sheet || sheet->contentStackView()->count() == 0)
        return nullptr;
    QWidget *page = sheet->contentStackView()->itemAt(0)->widget();
    return page && page->isVisible() ? page : nullptr;
}

QObject *TovuDemoWidgetPagePlayer::modelOf(QObject *page) const
{
    // Every page owns its view model.
    for (QObject *child : page->children()) {
        if (qobject_cast<TovuQuestionViewModel *>(child) || qobject_cast<TovuIntroViewModel *>(child)
            || qobject_cast<TovuThankYouViewModel *>(child))
            return child;
    }
    return nullptr;
}

QWidget *TovuDemoWidgetPagePlayer::find(QObject *page, const Control &control) const
{
    auto *widget = qobject_cast<QWidget *>(page);
    QWidget *found = widget ? this->control(widget, control) : nullptr;
    return found && found->isVisible() && found->isEnabled() ? found : nullptr;
}

bool TovuDemoWidgetPagePlayer::isReady(QObject *page, const Control &control) const
{
    return find(page, control) != nullptr;
}

QWidget *TovuDemoWidgetPagePlayer::control(QWidget *page, const Control &control)
{
    switch (control.kind) {
    case Kind::start:
        return from<TovuIntroView>(page, [](auto *v) { return v->startButton(); });
    case Kind::action:
        return actionButton(page);
    case Kind::option:
        return optionRow(page, control.index);
    case Kind::selector:
        return from<TovuDropdownQuestionView>(page, [](auto *v) { return v->dropdownButton(); });
    case Kind::listedOption:
        return from<TovuDropdownQuestionView>(page,
                                              [&control](auto *v) { return v->optionButtons().value(control.index); });
    case Kind::field:
        return from<TovuTextBoxQuestionView>(page,
                                             [&control](auto *v) { return v->textFields().value(control.index); });
    case Kind::score:
        return scoreButton(page, control.index, control.row);
    case Kind::followUpOption:
        return followUpOption(page, control.id);
    case Kind::followUpField:
        return from<TovuNPSQuestionView>(page, [](auto *v) { return v->followUpText(); });
    case Kind::rating:
        return from<TovuRatingQuestionView>(
            page, [&control](auto *v) { return v->ratingButtons().value(control.index - 1); });
    case Kind::cell:
        return ratingCell(page, control.id, control.index);
    }
    return nullptr;
}

void TovuDemoWidgetPagePlayer::reveal(QWidget *widget)
{
    // A page taller than the sheet scrolls: bring the control into view first, as a finger would.
    if (TovuToasterView *sheet = m_sheet ? m_sheet() : nullptr; sheet && sheet->isAncestorOf(widget))
        sheet->contentScrollArea()->ensureWidgetVisible(widget, 8, 16);
}

void TovuDemoWidgetPagePlayer::click(QObject *page, const Control &control)
{
    QWidget *widget = find(page, control);
    if (!widget)
        return;
    reveal(widget);
    const QPointF centre = QRectF(widget->rect()).center();
    TovuDemoInput::click(widget, centre, widget->mapToGlobal(centre));
}

void TovuDemoWidgetPagePlayer::focus(QObject *page, const Control &field)
{
    click(page, field);
    if (QWidget *widget = find(page, field))
        widget->setFocus(Qt::MouseFocusReason);
}

void TovuDemoWidgetPagePlayer::type(QObject *page, const Control &field, const QString &text)
{
    TovuDemoInput::type(find(page, field), text);
}

bool TovuDemoWidgetPagePlayer::hasSettled(QObject *page) const
{
    const auto *thanks = qobject_cast<const TovuThankYouView *>(page);
    return !thanks || thanks->entranceProgress() >= 1.0;
}

QImage TovuDemoWidgetPagePlayer::screenshot() const
{
    return m_screen ? m_screen->grab().toImage() : QImage();
}
