#pragma once

#include <tovukit_io/model/TovuSurvey.h>
#include <tovukit_io/ui/TovuQuestionView.h>
#include <tovukit_io/viewmodel/TovuMultipleChoiceQuestionViewModel.h>

#include <QList>
#include <QStringList>

#include <optional>
#include <set>
#include <string>

class QVBoxLayout;

/// A multiple-choice question: checkbox rows that tick independently, a hint line
/// ("Select all that apply" unless the question has a subtitle) and a "Next →" /
/// "Submit" button that reports the ticked options in option order.
///
/// Each row's objectName is its option's id: that, not its position, links a row
/// to its option.
class TovuMultipleChoiceQuestionView : public TovuQuestionView
{
    Q_OBJECT

public:
    explicit TovuMultipleChoiceQuestionView(TovuQuestion question, bool isLastQuestion, QWidget *parent = nullptr);
    ~TovuMultipleChoiceQuestionView() override;

    QLabel *titleLabel() const { return m_titleLabel; }
    QLabel *hintLabel() const { return m_hintLabel; }
    QVBoxLayout *optionsStack() const { return m_optionsStack; }
    QLabel *validationLabel() const { return m_validationLabel; }
    TovuButton *nextButton() const { return m_nextButton; }
    /// The rows in option order.
    const QList<TovuButton *> &optionButtons() const { return m_optionButtons; }
    const std::optional<TovuQuestion> &question() const;
    bool isLastQuestion() const;
    /// The ticked ids.
    std::set<std::string> selectedIds() const;
    TovuMultipleChoiceQuestionViewModel *viewModel() const { return m_model; }

    /// What a tap on `row` does: ticks or unticks its option (a tick bounces).
    void optionTapped(TovuButton *row);
    /// What a tap on the button does: reports the ticked options, or refuses a required question.
    void nextTapped();

protected:
    void restyle() override;

private:
    TovuMultipleChoiceQuestionView(TovuMultipleChoiceQuestionViewModel *model, QWidget *parent);

    TovuMultipleChoiceQuestionViewModel *m_model = nullptr;
    QLabel *m_titleLabel = nullptr;
    QLabel *m_hintLabel = nullptr;
    QVBoxLayout *m_optionsStack = nullptr;
    QLabel *m_validationLabel = nullptr;
    TovuButton *m_nextButton = nullptr;
    QList<TovuButton *> m_optionButtons;
};
