#pragma once

#include <tovukit_io/model/TovuSurvey.h>
#include <tovukit_io/ui/TovuQuestionView.h>
#include <tovukit_io/viewmodel/TovuSingleChoiceQuestionViewModel.h>

#include <QList>

#include <optional>

class QVBoxLayout;

/// A single-choice question: radio-style option rows and a "Next →" (or, on the
/// last question, "Submit") button that reports the chosen option.
///
/// The page draws its TovuSingleChoiceQuestionViewModel, which decides what a tap
/// does; the answer arrives through `onAnswer`, and the page never advances itself.
///
/// \code
/// auto *page = new TovuSingleChoiceQuestionView(question, isLast);
/// page->onAnswer = [](const TovuAnswer &answer) { ... };
/// sheet->setQuestionView(page);
/// \endcode
class TovuSingleChoiceQuestionView : public TovuQuestionView
{
    Q_OBJECT

public:
    explicit TovuSingleChoiceQuestionView(TovuQuestion question, bool isLastQuestion, QWidget *parent = nullptr);
    ~TovuSingleChoiceQuestionView() override;

    QLabel *titleLabel() const { return m_titleLabel; }
    QVBoxLayout *optionsStack() const { return m_optionsStack; }
    QLabel *validationLabel() const { return m_validationLabel; }
    TovuButton *nextButton() const { return m_nextButton; }
    /// The rows in option order; each row's `tag` is its option's index.
    const QList<TovuButton *> &optionRows() const { return m_optionRows; }
    const std::optional<TovuQuestion> &question() const;
    bool isLastQuestion() const;
    std::optional<TovuChoice> selectedOption() const;
    TovuSingleChoiceQuestionViewModel *viewModel() const { return m_model; }

    /// What a tap on `row` does: chooses its option and bounces it.
    void optionTapped(TovuButton *row);
    /// What a tap on the button does: reports the choice, or refuses a required question.
    void nextTapped();

protected:
    void restyle() override;

private:
    TovuSingleChoiceQuestionView(TovuSingleChoiceQuestionViewModel *model, QWidget *parent);

    TovuSingleChoiceQuestionViewModel *m_model = nullptr;
    QLabel *m_titleLabel = nullptr;
    QVBoxLayout *m_optionsStack = nullptr;
    QLabel *m_validationLabel = nullptr;
    TovuButton *m_nextButton = nullptr;
    QList<TovuButton *> m_optionRows;
};
