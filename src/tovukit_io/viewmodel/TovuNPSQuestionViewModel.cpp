#include <tovukit_io/viewmodel/TovuNPSQuestionViewModel.h>

#include <algorithm>
#include <utility>

namespace {

bool isSingleChoice(const TovuConditionalFollowUp &followUp)
{
    return followUp.followUpType == TovuQuestionType::singleChoice;
}

} // namespace

TovuNPSQuestionViewModel::TovuNPSQuestionViewModel(std::optional<TovuQuestion> question, bool isLastQuestion,
                                                   QObject *parent)
    : TovuQuestionViewModel(std::move(question), isLastQuestion, QString(), parent)
{
    // Hidden until a score is chosen, when the follow-up decides the title.
    setActionTitle(actionTitleFor(false));
    setActionVisible(false);
}

QStringList TovuNPSQuestionViewModel::followUpOptionIds() const
{
    QStringList ids;
    for (const TovuChoice &option : m_followUpOptions)
        ids.append(QString::fromStdString(option.id));
    return ids;
}

QStringList TovuNPSQuestionViewModel::followUpOptionTexts() const
{
    QStringList texts;
    for (const TovuChoice &option : m_followUpOptions)
        texts.append(QString::fromStdString(option.text));
    return texts;
}

QString TovuNPSQuestionViewModel::selectedFollowUpOptionIdText() const
{
    return m_selectedFollowUpOptionId ? QString::fromStdString(*m_selectedFollowUpOptionId) : QString();
}

QString TovuNPSQuestionViewModel::lowLabel() const
{
    return TovuNPSBands::lowLabel(TovuNPSBands::labelsOf(question()));
}

QString TovuNPSQuestionViewModel::highLabel() const
{
    return TovuNPSBands::highLabel(TovuNPSBands::labelsOf(question()));
}

QColor TovuNPSQuestionViewModel::bandColor(int score) const
{
    return TovuNPSBands::colorOf(score, TovuNPSBands::labelsOf(question()));
}

TovuNPSBands::Look TovuNPSQuestionViewModel::scoreLook(int score) const
{
    return TovuNPSBands::look(bandColor(score), TovuNPSBands::emphasisOf(score, m_selectedScore));
}

void TovuNPSQuestionViewModel::selectScore(int score)
{
    if (!TovuNPSBands::isScore(score))
        return;
    m_selectedScore = score;
    if (std::exchange(m_selectedFollowUpOptionId, std::nullopt))
        Q_EMIT selectedFollowUpOptionIdChanged();

    const TovuConditionalFollowUp *conditional = conditionalFollowUpFor(score);
    if (conditional && isSingleChoice(*conditional) && conditional->followUpOptions
        && !conditional->followUpOptions->empty())
        showFollowUp(FollowUpKind::singleChoice, conditional->followUpQuestion, *conditional->followUpOptions);
    else if (conditional)
        showFollowUp(FollowUpKind::text, conditional->followUpQuestion, {});
    else if (question() && question()->followUpQuestion)
        showFollowUp(FollowUpKind::text, *question()->followUpQuestion, {});
    else
        showFollowUp(FollowUpKind::none, {}, {});

    setActionTitle(actionTitleFor(isFollowUpShown() || isLastQuestion()));
    setActionVisible(true);
    Q_EMIT selectedScoreChanged();
}

void TovuNPSQuestionViewModel::showFollowUp(FollowUpKind kind, const std::string &question,
                                            std::vector<TovuChoice> options)
{
    m_followUpKind = kind;
    m_followUpQuestion = QString::fromStdString(question);
    m_followUpOptions = std::move(options);
    // A new text follow-up starts empty; a choice list leaves the (hidden) text alone.
    if (kind == FollowUpKind::text)
        setFollowUpText(QString());
    Q_EMIT followUpChanged();
}

void TovuNPSQuestionViewModel::selectFollowUpOption(const QString &optionId)
{
    const std::string id = optionId.toStdString();
    const bool offered = std::ranges::any_of(m_followUpOptions, [&id](const TovuChoice &o) { return o.id == id; });
    if (m_followUpKind != FollowUpKind::singleChoice || !offered)
        return;
    m_selectedFollowUpOptionId = id;
    Q_EMIT selectedFollowUpOptionIdChanged();
}

void TovuNPSQuestionViewModel::setFollowUpText(const QString &text)
{
    if (m_followUpText == text)
        return;
    m_followUpText = text;
    Q_EMIT followUpTextChanged();
}

void TovuNPSQuestionViewModel::submitQuestion(const TovuQuestion &question)
{
    if (!m_selectedScore)
        return;
    const int score = *m_selectedScore;
    if (const std::optional<TovuAnswer> followUp = followUpAnswer(question, score); followUp && onAdditionalAnswer)
        onAdditionalAnswer(*followUp);
    report(
        TovuAnswer{.questionId = question.id,
                   .value = {{.rowId = scaleRowId(), .colId = scaleColumnId(static_cast<std::size_t>(score), score)}}});
}

std::optional<TovuAnswer> TovuNPSQuestionViewModel::followUpAnswer(const TovuQuestion &question, int score) const
{
    const TovuConditionalFollowUp *conditional = conditionalFollowUpFor(score);
    if (conditional && conditional->questionId) {
        const std::string &id = *conditional->questionId;
        // A choice follow-up answers with its option alone, whatever the text area holds.
        if (!isSingleChoice(*conditional))
            return textAnswer(id, id);
        if (!m_selectedFollowUpOptionId)
            return std::nullopt;
        return TovuAnswer{.questionId = id, .value = {{.rowId = *m_selectedFollowUpOptionId}}};
    }
    if (!question.followUpQuestion)
        return std::nullopt;
    return textAnswer(question.id + "_followup", question.id);
}

std::optional<TovuAnswer> TovuNPSQuestionViewModel::textAnswer(const std::string &questionId,
                                                               const std::string &rowId) const
{
    const QString text = m_followUpText.trimmed();
    if (text.isEmpty())
        return std::nullopt;
    return TovuAnswer{.questionId = questionId,
                      .value = {{.rowId = rowId, .text = text.toStdString(), .type = "text"}}};
}

QVariantMap TovuNPSQuestionViewModel::scoreStyle(int score) const
{
    return TovuNPSBands::styleOf(scoreLook(score));
}
