#include <tovukit_io/viewmodel/TovuSingleChoiceQuestionViewModel.h>

TovuSingleChoiceQuestionViewModel::TovuSingleChoiceQuestionViewModel(std::optional<TovuQuestion> question,
                                                                     bool isLastQuestion, QObject *parent)
    : TovuQuestionViewModel(std::move(question), isLastQuestion, tr("Please select an option."), parent)
{ }

std::optional<TovuChoice> TovuSingleChoiceQuestionViewModel::selectedOption() const
{
    return optionAt(m_selectedIndex);
}

void TovuSingleChoiceQuestionViewModel::selectOption(int index)
{
    if (!optionAt(index))
        return;
    setValidationVisible(false);
    m_selectedIndex = index;
    Q_EMIT selectedIndexChanged();
}

void TovuSingleChoiceQuestionViewModel::submitQuestion(const TovuQuestion &question)
{
    submitChoice(question, selectedOption());
}
