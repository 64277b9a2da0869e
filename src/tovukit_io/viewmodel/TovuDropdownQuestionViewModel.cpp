#include <tovukit_io/viewmodel/TovuDropdownQuestionViewModel.h>

TovuDropdownQuestionViewModel::TovuDropdownQuestionViewModel(std::optional<TovuQuestion> question, QObject *parent)
    : TovuQuestionViewModel(std::move(question), false, tr("Please select an option."), parent)
{
    setActionVisible(false);
}

std::optional<TovuChoice> TovuDropdownQuestionViewModel::selectedOption() const
{
    return optionAt(m_selectedIndex);
}

QString TovuDropdownQuestionViewModel::selectorTitle() const
{
    if (const std::optional<TovuChoice> choice = selectedOption())
        return QString::fromStdString(choice->text);
    if (question() && question()->placeholder)
        return QString::fromStdString(*question()->placeholder);
    return tr("Select an option");
}

void TovuDropdownQuestionViewModel::toggleExpanded()
{
    setExpanded(!m_expanded);
}

void TovuDropdownQuestionViewModel::chooseOption(int index)
{
    if (!optionAt(index))
        return;
    m_selectedIndex = index;
    setValidationVisible(false);
    Q_EMIT selectedIndexChanged();
    setExpanded(false);
    setActionVisible(true);
}

void TovuDropdownQuestionViewModel::setExpanded(bool expanded)
{
    if (m_expanded == expanded)
        return;
    m_expanded = expanded;
    Q_EMIT expandedChanged();
}

void TovuDropdownQuestionViewModel::submitQuestion(const TovuQuestion &question)
{
    submitChoice(question, selectedOption());
}
