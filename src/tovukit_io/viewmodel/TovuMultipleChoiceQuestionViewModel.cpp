#include <tovukit_io/viewmodel/TovuMultipleChoiceQuestionViewModel.h>

#include <algorithm>

TovuMultipleChoiceQuestionViewModel::TovuMultipleChoiceQuestionViewModel(std::optional<TovuQuestion> question,
                                                                         bool isLastQuestion, QObject *parent)
    : TovuQuestionViewModel(std::move(question), isLastQuestion, tr("Please select at least one option."), parent)
{ }

QString TovuMultipleChoiceQuestionViewModel::hint() const
{
    const TovuQuestion *q = question() ? &*question() : nullptr;
    return q && q->subtitle ? QString::fromStdString(*q->subtitle) : tr("Select all that apply");
}

bool TovuMultipleChoiceQuestionViewModel::isSelected(const QString &optionId) const
{
    return m_selectedIds.contains(optionId.toStdString());
}

// Each ticked id once, in the order its first option appears: readers of the
// responses see a stable order.
std::vector<std::string> TovuMultipleChoiceQuestionViewModel::tickedInOptionOrder() const
{
    std::vector<std::string> ids;
    for (const TovuChoice &choice : options()) {
        if (m_selectedIds.contains(choice.id) && std::ranges::find(ids, choice.id) == ids.end())
            ids.push_back(choice.id);
    }
    return ids;
}

QStringList TovuMultipleChoiceQuestionViewModel::selectedIds() const
{
    QStringList ids;
    for (const std::string &id : tickedInOptionOrder())
        ids.append(QString::fromStdString(id));
    return ids;
}

void TovuMultipleChoiceQuestionViewModel::toggleOption(const QString &optionId)
{
    const std::string id = optionId.toStdString();
    if (std::ranges::none_of(options(), [&id](const TovuChoice &choice) { return choice.id == id; }))
        return;
    setValidationVisible(false);
    if (!m_selectedIds.erase(id))
        m_selectedIds.insert(id);
    Q_EMIT selectedIdsChanged();
}

void TovuMultipleChoiceQuestionViewModel::submitQuestion(const TovuQuestion &question)
{
    if (question.isRequired && m_selectedIds.empty()) {
        refuse();
        return;
    }
    TovuAnswer answer{.questionId = question.id};
    for (std::string &id : tickedInOptionOrder())
        answer.value.push_back({.rowId = std::move(id)});
    report(answer);
}
