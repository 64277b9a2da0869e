#include <tovukit_io/viewmodel/TovuSingleChoiceQuestionViewModel.h>

TovuSingleChoiceQuestionViewModel::TovuSingleChoiceQuestionViewModel(std::optional<TovuQuestion> question,
                                                                     bool isLastQuestion, QObject *parent)
    : TovuQuestionViewModel(std::move(question), isLastQuestion, tr("Please select an option."), parent)
{ }

std::optional<TovuChoice> TovuSingleChoiceQuestionViewModel::selectedOption() const
{
    if (m_selectedIndex < 0)
        return std::nullopt;
    return options()[static_cast<std::size_t>(m_selectedIndex)];
}

void TovuSingleChoiceQuestionViewModel::selectOption(int index)
{
    if (index < 0 || static_cast<std::size_t>(index) >= options().size())
        return;
    setValidationVisible(false);
    m_selectedIndex = index;
    Q_EMIT selectedIndexChanged();
}

void TovuSingleChoiceQuestionViewModel::submitQuestion(const TovuQuestion &question)
{
    const std::optional<TovuChoice> choice = selectedOption();
    if (!choice) {
        // An optional question is left through Skip, not through an empty answer.
        if (question.isRequired)
            refuse();
        return;
    }
    report(TovuAnswer{.questionId = question.id, .value = {{.rowId = choice->id}}});
}
