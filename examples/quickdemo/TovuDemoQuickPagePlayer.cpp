#include "TovuDemoQuickPagePlayer.h"

#include "TovuDemoInput.h"
#include "TovuDemoScreenReader.h"

#include <tovukit_io/quick/TovuQuickSheet.h>
#include <tovukit_io/viewmodel/TovuDropdownQuestionViewModel.h>
#include <tovukit_io/viewmodel/TovuIntroViewModel.h>
#include <tovukit_io/viewmodel/TovuMultiRatingQuestionViewModel.h>
#include <tovukit_io/viewmodel/TovuMultipleChoiceQuestionViewModel.h>
#include <tovukit_io/viewmodel/TovuNPSQuestionViewModel.h>
#include <tovukit_io/viewmodel/TovuRatingQuestionViewModel.h>
#include <tovukit_io/viewmodel/TovuTextBoxQuestionViewModel.h>

#include <QQuickItem>
#include <QQuickWindow>

using Kind = TovuDemoPagePlayer::Control::Kind;

TovuDemoQuickPagePlayer::TovuDemoQuickPagePlayer(std::function<TovuQuickSheet *()> sheet, QQuickItem *screen,
                                                 QObject *parent)
    : TovuDemoPagePlayer(parent)
    , m_sheet(std::move(sheet))
    , m_screen(screen)
{ }

QQuickWindow *TovuDemoQuickPagePlayer::window() const
{
    return m_screen ? m_screen->window() : nullptr;
}

QObject *TovuDemoQuickPagePlayer::shownPage() const
{
    TovuQuickSheet *sheet = m_sheet ? m_sheet() : nullptr;
    QQuickItem *page = sheet ? sheet->currentPage() : nullptr;
    return TovuDemoScreenReader::isShown(page) ? page : nullptr;
}

QObject *TovuDemoQuickPagePlayer::modelOf(QObject *page) const
{
    // Every page of the module draws the view model it is given as `model`.
    return page->property("model").value<QObject *>();
}

std::optional<TovuDemoQuickPagePlayer::Wanted> TovuDemoQuickPagePlayer::wanted(QObject *model, const Control &control)
{
    const auto *question = qobject_cast<const TovuQuestionViewModel *>(model);
    const auto name = [](QAccessible::Role role, const QString &text) -> std::optional<Wanted> {
        if (text.isEmpty())
            return std::nullopt;
        return Wanted{role, text, {}};
    };
    switch (control.kind) {
    case Kind::start: {
        const auto *intro = qobject_cast<const TovuIntroViewModel *>(model);
        return intro ? name(QAccessible::Button, intro->buttonTitle()) : std::nullopt;
    }
    case Kind::action:
        return question ? name(QAccessible::Button, question->actionTitle()) : std::nullopt;
    case Kind::option: {
        // One choice is a radio button, several are check boxes.
        const QAccessible::Role role = qobject_cast<const TovuMultipleChoiceQuestionViewModel *>(model)
            ? QAccessible::CheckBox
            : QAccessible::RadioButton;
        return question ? name(role, question->optionTexts().value(control.index)) : std::nullopt;
    }
    case Kind::selector: {
        const auto *dropdown = qobject_cast<const TovuDropdownQuestionViewModel *>(model);
        return dropdown ? name(QAccessible::Button, dropdown->selectorTitle()) : std::nullopt;
    }
    case Kind::listedOption:
        return question ? name(QAccessible::Button, question->optionTexts().value(control.index)) : std::nullopt;
    case Kind::field: {
        // A lone field is named by the question, each of several by its label.
        const auto *text = qobject_cast<const TovuTextBoxQuestionViewModel *>(model);
        if (!text)
            return std::nullopt;
        return name(QAccessible::EditableText,
                    text->isMultiple() ? text->fieldLabels().value(control.index) : text->title());
    }
    case Kind::score: {
        // Every row of a multi-NPS page has the same scores: each is described by its row.
        const QString row = control.row >= 0 && question ? question->optionTexts().value(control.row) : QString();
        return Wanted{QAccessible::Button, QStringLiteral("Score %1").arg(control.index), row};
    }
    case Kind::followUpOption: {
        const auto *nps = qobject_cast<const TovuNPSQuestionViewModel *>(model);
        if (!nps)
            return std::nullopt;
        return name(QAccessible::RadioButton,
                    nps->followUpOptionTexts().value(nps->followUpOptionIds().indexOf(control.id)));
    }
    case Kind::followUpField: {
        const auto *nps = qobject_cast<const TovuNPSQuestionViewModel *>(model);
        return nps ? name(QAccessible::EditableText, nps->followUpQuestion()) : std::nullopt;
    }
    case Kind::rating: {
        const auto *rating = qobject_cast<const TovuRatingQuestionViewModel *>(model);
        return rating ? name(QAccessible::CheckBox, rating->accessibleName(control.index)) : std::nullopt;
    }
    case Kind::cell: {
        const auto *grid = qobject_cast<const TovuMultiRatingQuestionViewModel *>(model);
        return grid ? name(QAccessible::CheckBox, grid->accessibleName(control.row, control.index)) : std::nullopt;
    }
    }
    return std::nullopt;
}

QAccessibleInterface *TovuDemoQuickPagePlayer::node(QObject *page, const Control &control) const
{
    auto *item = qobject_cast<QQuickItem *>(page);
    const std::optional<Wanted> looked = item ? wanted(modelOf(page), control) : std::nullopt;
    return looked ? TovuDemoScreenReader::find(item, looked->role, looked->name, looked->description) : nullptr;
}

bool TovuDemoQuickPagePlayer::isReady(QObject *page, const Control &control) const
{
    return node(page, control) != nullptr;
}

void TovuDemoQuickPagePlayer::click(QObject *page, const Control &control)
{
    if (QAccessibleInterface *found = node(page, control))
        TovuDemoScreenReader::click(found);
}

void TovuDemoQuickPagePlayer::focus(QObject *page, const Control &field)
{
    // A press on a text field gives it the keyboard focus.
    click(page, field);
}

void TovuDemoQuickPagePlayer::type(QObject *, const Control &, const QString &text)
{
    TovuDemoInput::type(window(), text);
}

bool TovuDemoQuickPagePlayer::hasSettled(QObject *page) const
{
    // The thank-you page's entrance runs from 0 to 1.
    const QVariant entrance = page->property("entrance");
    return !entrance.isValid() || entrance.toReal() >= 1.0;
}

QImage TovuDemoQuickPagePlayer::screenshot() const
{
    QQuickWindow *shown = window();
    if (!shown || !m_screen)
        return {};
    const QImage whole = shown->grabWindow();
    const qreal ratio = whole.devicePixelRatio();
    const QRectF place = m_screen->mapRectToScene(m_screen->boundingRect());
    QImage screen = whole.copy(QRectF(place.topLeft() * ratio, place.size() * ratio).toAlignedRect());
    screen.setDevicePixelRatio(ratio);
    return screen;
}
