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

private:
    static void click(QWidget *widget) { QTest::mouseClick(widget, Qt::LeftButton); }

    static std::string optionId(const TovuQuestion &q, int index)
    {
        return q.options->at(static_cast<std::size_t>(index)).id;
    }

    static void clickIfVisible(TovuButton *button)
    {
        if (button && button->isVisible())
            click(button);
    }

    void single(TovuSingleChoiceQuestionView &view)
    {
        const TovuQuestion &q = (*view.viewModel()->question());
        const int choice = std::min(1, static_cast<int>(view.optionRows().size()) - 1);
        click(view.optionRows()[choice]);
        expected.push_back({q.id, {optionId(q, choice)}, {}});
        clickIfVisible(view.nextButton());
    }

    void multiple(TovuMultipleChoiceQuestionView &view)
    {
        const TovuQuestion &q = (*view.viewModel()->question());
        Expected e{q.id, {}, {}};
        for (int index = 0; index < view.optionButtons().size(); index += 2) {
            click(view.optionButtons()[index]);
            e.rowIds.push_back(optionId(q, index));
        }
        expected.push_back(e);
        click(view.nextButton());
    }

    void dropdown(TovuDropdownQuestionView &view)
    {
        const TovuQuestion &q = (*view.viewModel()->question());
        click(view.dropdownButton());
        const int choice = std::min(2, static_cast<int>(view.optionButtons().size()) - 1);
        [[maybe_unused]] const bool open
            = QTest::qWaitFor([&] { return view.optionButtons()[choice]->isVisible(); }, 2000);
        click(view.optionButtons()[choice]);
        expected.push_back({q.id, {optionId(q, choice)}, {}});
        click(view.nextButton());
    }

    void textBox(TovuTextBoxQuestionView &view)
    {
        Expected e{(*view.viewModel()->question()).id, {}, {}};
        for (int index = 0; index < view.textFields().size(); ++index) {
            const std::string text = "Answer " + std::to_string(index + 1) + ", thanks";
            click(view.textFields()[index]);
            QTest::keyClicks(view.textFields()[index], QString::fromStdString(text));
            e.texts.push_back(text);
        }
        expected.push_back(e);
        click(view.submitButton());
    }

    void nps(TovuNPSQuestionView &view)
    {
        click(view.npsButtons()[9]);
        if (!view.followUpOptionButtons().isEmpty() && view.followUpOptionButtons()[0]->isVisible())
            click(view.followUpOptionButtons()[0]);
        if (view.followUpText() && view.followUpText()->isVisible()) {
            click(view.followUpText());
            QTest::keyClicks(view.followUpText(), QStringLiteral("Quick delivery"));
        }
        expected.push_back({(*view.viewModel()->question()).id, {}, {}});
        click(view.actionButton());
    }

    void multiNps(TovuMultiNPSQuestionView &view)
    {
        for (const QList<TovuButton *> &row : view.scoreButtons())
            click(row[8]);
        expected.push_back({(*view.viewModel()->question()).id, {}, {}});
        click(view.actionButton());
    }

    void rating(TovuRatingQuestionView &view)
    {
        click(view.ratingButtons()[std::min(3, static_cast<int>(view.ratingButtons().size()) - 1)]);
        expected.push_back({(*view.viewModel()->question()).id, {}, {}});
        clickIfVisible(view.actionButton());
    }

    void multiRating(TovuMultiRatingQuestionView &view)
    {
        for (const auto &[rowId, buttons] : view.rowButtons())
            click(buttons[std::min(2, static_cast<int>(buttons.size()) - 1)]);
        expected.push_back({(*view.viewModel()->question()).id, {}, {}});
        click(view.actionButton());
    }
};
