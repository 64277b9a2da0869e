#pragma once

// Answers whatever page a survey sheet shows, with real clicks and typing on
// its widgets, and remembers what each answer must hold.

#include "TovuAnsweredPages.h"

#include <tovukit_io/ui/TovuDropdownQuestionView.h>
#include <tovukit_io/ui/TovuIntroView.h>
#include <tovukit_io/ui/TovuMultiNPSQuestionView.h>
#include <tovukit_io/ui/TovuMultiRatingQuestionView.h>
#include <tovukit_io/ui/TovuMultipleChoiceQuestionView.h>
#include <tovukit_io/ui/TovuNPSQuestionView.h>
#include <tovukit_io/ui/TovuRatingQuestionView.h>
#include <tovukit_io/ui/TovuSingleChoiceQuestionView.h>
#include <tovukit_io/ui/TovuTextBoxQuestionView.h>
#include <tovukit_io/ui/TovuToasterView.h>
#include <tovukit_io/ui/kit/TovuButton.h>
#include <tovukit_io/ui/kit/TovuTextArea.h>
#include <tovukit_io/ui/kit/TovuTextField.h>

#include <QAccessible>
#include <QAccessibleActionInterface>
#include <QApplication>
#include <QLayout>
#include <QPointer>
#include <QTest>

#include <functional>

#include <string>
#include <vector>

class TovuSurveyClicker
{
public:
    using Expected = TovuAnsweredPages::Expected;
    using Pick = TovuAnsweredPages::Pick;

    static QWidget *currentPage(const TovuToasterView *sheet)
    {
        if (!sheet || sheet->contentStackView()->count() == 0)
            return nullptr;
        return sheet->contentStackView()->itemAt(0)->widget();
    }

    /// Answers the page on screen. Returns false for a page with nothing to answer.
    bool answer(QWidget *page)
    {
        // A page just put in the sheet is shown on the next turn of the event loop.
        if (!page || !QTest::qWaitFor([page] { return page->isVisible(); }, 2000))
            return false;
        if (auto *intro = qobject_cast<TovuIntroView *>(page))
            return click(intro->startButton()), true;
        if (auto *view = qobject_cast<TovuSingleChoiceQuestionView *>(page))
            return single(*view), true;
        if (auto *view = qobject_cast<TovuMultipleChoiceQuestionView *>(page))
            return multiple(*view), true;
        if (auto *view = qobject_cast<TovuDropdownQuestionView *>(page))
            return dropdown(*view), true;
        if (auto *view = qobject_cast<TovuTextBoxQuestionView *>(page))
            return textBox(*view), true;
        if (auto *view = qobject_cast<TovuNPSQuestionView *>(page))
            return nps(*view), true;
        if (auto *view = qobject_cast<TovuMultiNPSQuestionView *>(page))
            return multiNps(*view), true;
        if (auto *view = qobject_cast<TovuRatingQuestionView *>(page))
            return rating(*view), true;
        if (auto *view = qobject_cast<TovuMultiRatingQuestionView *>(page))
            return multiRating(*view), true;
        return false;
    }

    /// Answers page after page until a page with nothing to answer (the
    /// thank-you page) or no sheet; returns the pages answered.
    int answerAll(const std::function<TovuToasterView *()> &sheet, int limit = 40)
    {
        int answered = 0;
        for (QPointer<QWidget> page = currentPage(sheet()); page && answered < limit; ++answered) {
            if (!answer(page))
                break;
            // The next page replaces this one (or the sheet goes).
            if (!QTest::qWaitFor([&] { return !page || currentPage(sheet()) != page.data(); }, 5000))
                break;
            page = currentPage(sheet());
        }
        return answered;
    }

    std::vector<Expected> expected;
    /// Answers with key presses alone: Tab to each control, Space to press it.
    bool keyboardOnly = false;
    /// Answers through accessibility alone: press and toggle actions, text inserted.
    bool screenReaderOnly = false;

private:
    void click(QWidget *widget) const
    {
        if (screenReaderOnly) {
            // What a screen reader's user does: the control's own action, toggle or press.
            QAccessibleInterface *control = QAccessible::queryAccessibleInterface(widget);
            if (QAccessibleActionInterface *actions = control ? control->actionInterface() : nullptr) {
                const bool toggles = actions->actionNames().contains(QAccessibleActionInterface::toggleAction());
                actions->doAction(toggles ? QAccessibleActionInterface::toggleAction()
                                          : QAccessibleActionInterface::pressAction());
            }
            return;
        }
        if (!keyboardOnly) {
            QTest::mouseClick(widget, Qt::LeftButton);
            return;
        }
        // Tab until the control has focus, then Space (a field is only reached: typing follows).
        for (int presses = 0; presses < 120 && QApplication::focusWidget() != widget; ++presses)
            QTest::keyClick(QApplication::focusWidget() ? QApplication::focusWidget() : widget->window(), Qt::Key_Tab);
        if (!widget->testAttribute(Qt::WA_InputMethodEnabled))
            QTest::keyClick(widget, Qt::Key_Space);
    }

    void type(QWidget *field, const QString &text) const
    {
        if (screenReaderOnly) {
            QAccessibleInterface *control = QAccessible::queryAccessibleInterface(field);
            if (QAccessibleEditableTextInterface *editable = control ? control->editableTextInterface() : nullptr)
                editable->insertText(0, text);
            return;
        }
        click(field);
        QTest::keyClicks(field, text);
    }

    void clickIfVisible(TovuButton *button) const
    {
        if (button && button->isVisible())
            click(button);
    }

    void single(TovuSingleChoiceQuestionView &view)
    {
        const int choice = std::min(Pick::singleChoice, static_cast<int>(view.optionRows().size()) - 1);
        click(view.optionRows()[choice]);
        expected.push_back(TovuAnsweredPages::expectedFor(*view.viewModel()->question()));
        clickIfVisible(view.nextButton());
    }

    void multiple(TovuMultipleChoiceQuestionView &view)
    {
        for (int index = 0; index < view.optionButtons().size(); index += Pick::multipleChoiceStep)
            click(view.optionButtons()[index]);
        expected.push_back(TovuAnsweredPages::expectedFor(*view.viewModel()->question()));
        click(view.nextButton());
    }

    void dropdown(TovuDropdownQuestionView &view)
    {
        click(view.dropdownButton());
        const int choice = std::min(Pick::dropdown, static_cast<int>(view.optionButtons().size()) - 1);
        [[maybe_unused]] const bool open
            = QTest::qWaitFor([&] { return view.optionButtons()[choice]->isVisible(); }, 2000);
        click(view.optionButtons()[choice]);
        expected.push_back(TovuAnsweredPages::expectedFor(*view.viewModel()->question()));
        click(view.nextButton());
    }

    void textBox(TovuTextBoxQuestionView &view)
    {
        const auto count = static_cast<int>(view.textFields().size());
        for (int index = 0; index < count; ++index) {
            type(view.textFields()[index], QString::fromStdString(Pick::fieldText(index)));
        }
        expected.push_back(TovuAnsweredPages::expectedFor(*view.viewModel()->question(), count));
        click(view.submitButton());
    }

    void nps(TovuNPSQuestionView &view)
    {
        click(view.npsButtons()[Pick::npsScore]);
        if (!view.followUpOptionButtons().isEmpty() && view.followUpOptionButtons()[0]->isVisible())
            click(view.followUpOptionButtons()[0]);
        if (view.followUpText() && view.followUpText()->isVisible()) {
            type(view.followUpText(), QString::fromUtf8(Pick::followUpText));
        }
        expected.push_back(TovuAnsweredPages::expectedFor(*view.viewModel()->question()));
        click(view.actionButton());
    }

    void multiNps(TovuMultiNPSQuestionView &view)
    {
        for (const QList<TovuButton *> &row : view.scoreButtons())
            click(row[Pick::multiNpsScore]);
        expected.push_back(TovuAnsweredPages::expectedFor(*view.viewModel()->question()));
        click(view.actionButton());
    }

    void rating(TovuRatingQuestionView &view)
    {
        click(view.ratingButtons()[std::min(Pick::rating, static_cast<int>(view.ratingButtons().size())) - 1]);
        expected.push_back(TovuAnsweredPages::expectedFor(*view.viewModel()->question()));
        clickIfVisible(view.actionButton());
    }

    void multiRating(TovuMultiRatingQuestionView &view)
    {
        for (const auto &[rowId, buttons] : view.rowButtons())
            click(buttons[std::min(Pick::gridColumn, static_cast<int>(buttons.size())) - 1]);
        expected.push_back(TovuAnsweredPages::expectedFor(*view.viewModel()->question()));
        click(view.actionButton());
    }
};
