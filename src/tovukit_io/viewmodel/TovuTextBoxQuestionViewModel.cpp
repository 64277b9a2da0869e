#include <tovukit_io/viewmodel/TovuTextBoxQuestionViewModel.h>

#include <algorithm>

namespace {

bool isValidIndex(int index, qsizetype count)
{
    return index >= 0 && index < count;
}

} // namespace

TovuTextBoxQuestionViewModel::TovuTextBoxQuestionViewModel(std::optional<TovuQuestion> question, QObject *parent)
    : TovuQuestionViewModel(std::move(question), true, tr("Please enter an answer."), parent)
{
    buildFields();
    for (std::size_t i = 0; i < m_fields.size(); ++i)
        m_texts.append(QString());
}

bool TovuTextBoxQuestionViewModel::isMultiple() const
{
    return question() && question()->type != TovuQuestionType::singleTextBox;
}

void TovuTextBoxQuestionViewModel::buildFields()
{
    if (!question())
        return;
    if (!isMultiple()) {
        const std::optional<std::string> &placeholder = question()->placeholder;
        m_fields.push_back(
            {.placeholder = placeholder ? QString::fromStdString(*placeholder) : tr("Type your answer here\u2026")});
        return;
    }
    // The default email label may be translated ("E-Mail", "メール"), so it is known by itself.
    const QString defaultEmail = question()->options ? QString() : tr("Email");
    QStringList labels;
    if (question()->options)
        labels = optionTexts();
    else
        labels = {tr("Name"), defaultEmail, tr("Comment")};
    for (const QString &label : labels) {
        m_fields.push_back(
            {.label = label,
             .placeholder = label + u'\u2026',
             .isEmail = label == defaultEmail || label.contains(QLatin1StringView("email"), Qt::CaseInsensitive)});
    }
}

QStringList TovuTextBoxQuestionViewModel::fieldLabels() const
{
    QStringList labels;
    for (const Field &field : m_fields)
        labels.append(field.label);
    return labels;
}

QStringList TovuTextBoxQuestionViewModel::fieldPlaceholders() const
{
    QStringList placeholders;
    for (const Field &field : m_fields)
        placeholders.append(field.placeholder);
    return placeholders;
}

bool TovuTextBoxQuestionViewModel::isEmailField(int index) const
{
    return isValidIndex(index, fieldCount()) && m_fields[static_cast<std::size_t>(index)].isEmail;
}

void TovuTextBoxQuestionViewModel::setFieldText(int index, const QString &text)
{
    if (!isValidIndex(index, m_texts.size()) || m_texts[index] == text)
        return;
    m_texts[index] = text;
    Q_EMIT fieldTextsChanged();
}

void TovuTextBoxQuestionViewModel::fieldFocused(int index)
{
    if (!isValidIndex(index, m_texts.size()))
        return;
    setValidationVisible(false);
    if (index == m_invalidField)
        setInvalidField(-1);
}

void TovuTextBoxQuestionViewModel::setInvalidField(int index)
{
    if (m_invalidField == index)
        return;
    m_invalidField = index;
    Q_EMIT invalidFieldIndexChanged();
}

bool TovuTextBoxQuestionViewModel::hasNonBlankField() const
{
    // QString::trimmed drops every Unicode white space, line breaks included.
    return std::ranges::any_of(m_texts, [](const QString &text) { return !text.trimmed().isEmpty(); });
}

void TovuTextBoxQuestionViewModel::submitQuestion(const TovuQuestion &question)
{
    if (question.isRequired && !hasNonBlankField()) {
        setValidationVisible(true);
        // Only the first field is marked, whichever one was left empty.
        setInvalidField(m_texts.isEmpty() ? -1 : 0);
        return;
    }
    const std::vector<TovuChoice> &choices = options();
    TovuAnswer answer{.questionId = question.id};
    for (qsizetype i = 0; i < m_texts.size(); ++i) {
        const auto index = static_cast<std::size_t>(i);
        answer.value.push_back({
            .rowId = index < choices.size() ? choices[index].id : freshId().toStdString(),
            .text = m_texts[i].toStdString(),
            .type = isMultiple() ? std::nullopt : std::optional<std::string>("text"),
        });
    }
    report(answer);
}
