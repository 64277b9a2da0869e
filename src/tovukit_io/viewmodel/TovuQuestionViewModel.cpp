#include <tovukit_io/viewmodel/TovuQuestionViewModel.h>

#include <QUuid>

#include <utility>

namespace {

QString text(const std::string &value)
{
    return QString::fromStdString(value);
}

const std::vector<TovuChoice> noOptions;

} // namespace

TovuQuestionViewModel::TovuQuestionViewModel(std::optional<TovuQuestion> question, bool isLastQuestion,
                                             QString validationMessage, QObject *parent)
    : QObject(parent)
    , m_question(std::move(question))
    , m_isLastQuestion(isLastQuestion)
    , m_actionTitle(actionTitleFor(isLastQuestion))
    , m_validationMessage(std::move(validationMessage))
{ }

TovuQuestionViewModel::~TovuQuestionViewModel() = default;

QString TovuQuestionViewModel::questionId() const
{
    return m_question ? text(m_question->id) : QString();
}

QString TovuQuestionViewModel::title() const
{
    return m_question ? text(m_question->title) : QString();
}

QString TovuQuestionViewModel::subtitle() const
{
    return m_question && m_question->subtitle ? text(*m_question->subtitle) : QString();
}

bool TovuQuestionViewModel::isRequired() const
{
    return m_question && m_question->isRequired;
}

const std::vector<TovuChoice> &TovuQuestionViewModel::options() const
{
    return m_question && m_question->options ? *m_question->options : noOptions;
}

std::optional<TovuChoice> TovuQuestionViewModel::optionAt(int index) const
{
    if (index < 0 || static_cast<std::size_t>(index) >= options().size())
        return std::nullopt;
    return options()[static_cast<std::size_t>(index)];
}

std::string TovuQuestionViewModel::scaleRowId() const
{
    return options().empty() ? freshId().toStdString() : options().front().id;
}

std::string TovuQuestionViewModel::scaleColumnId(std::size_t index, std::int64_t value) const
{
    if (m_question && m_question->columns && index < m_question->columns->size())
        return (*m_question->columns)[index].id;
    return std::to_string(value);
}

const TovuConditionalFollowUp *TovuQuestionViewModel::conditionalFollowUpFor(std::int64_t score) const
{
    if (!m_question || !m_question->conditionalFollowUps)
        return nullptr;
    for (const TovuConditionalFollowUp &followUp : *m_question->conditionalFollowUps) {
        if (followUp.minRating <= score && score <= followUp.maxRating)
            return &followUp;
    }
    return nullptr;
}

void TovuQuestionViewModel::submitChoice(const TovuQuestion &question, const std::optional<TovuChoice> &choice)
{
    if (!choice) {
        if (question.isRequired)
            refuse();
        return;
    }
    report(TovuAnswer{.questionId = question.id, .value = {{.rowId = choice->id}}});
}

QStringList TovuQuestionViewModel::optionTexts() const
{
    QStringList texts;
    for (const TovuChoice &choice : options())
        texts.append(text(choice.text));
    return texts;
}

QStringList TovuQuestionViewModel::optionIds() const
{
    QStringList ids;
    for (const TovuChoice &choice : options())
        ids.append(text(choice.id));
    return ids;
}

void TovuQuestionViewModel::submit()
{
    if (m_question)
        submitQuestion(*m_question);
}

QString TovuQuestionViewModel::actionTitleFor(bool isLastQuestion)
{
    return isLastQuestion ? tr("Submit") : tr("Next \u2192");
}

QString TovuQuestionViewModel::freshId()
{
    return QUuid::createUuid().toString(QUuid::WithoutBraces).toUpper();
}

void TovuQuestionViewModel::refuse()
{
    setValidationVisible(true);
    Q_EMIT shakeRequested();
}

void TovuQuestionViewModel::report(const TovuAnswer &answer)
{
    if (onAnswer)
        onAnswer(answer);
}

void TovuQuestionViewModel::setValidationVisible(bool visible)
{
    if (m_validationVisible == visible)
        return;
    m_validationVisible = visible;
    Q_EMIT validationVisibleChanged();
}

void TovuQuestionViewModel::setActionTitle(const QString &title)
{
    if (m_actionTitle == title)
        return;
    m_actionTitle = title;
    Q_EMIT actionTitleChanged();
}

void TovuQuestionViewModel::setActionVisible(bool visible)
{
    if (m_actionVisible == visible)
        return;
    m_actionVisible = visible;
    Q_EMIT actionVisibleChanged();
}
