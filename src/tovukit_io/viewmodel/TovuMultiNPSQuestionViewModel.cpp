#include <tovukit_io/viewmodel/TovuMultiNPSQuestionViewModel.h>

#include <algorithm>
#include <set>

TovuMultiNPSQuestionViewModel::TovuMultiNPSQuestionViewModel(std::optional<TovuQuestion> question, bool isLastQuestion,
                                                             QObject *parent)
    : TovuQuestionViewModel(std::move(question), isLastQuestion, tr("Please rate all items."), parent)
{ }

QVariantMap TovuMultiNPSQuestionViewModel::scores() const
{
    QVariantMap map;
    for (const auto &[rowId, rating] : m_selectedScores)
        map.insert(QString::fromStdString(rowId), rating.first);
    return map;
}

std::optional<int> TovuMultiNPSQuestionViewModel::scoreFor(const std::string &rowId) const
{
    const auto rated = m_selectedScores.find(rowId);
    return rated == m_selectedScores.end() ? std::nullopt : std::optional<int>(rated->second.first);
}

int TovuMultiNPSQuestionViewModel::scoreOf(const QString &rowId) const
{
    return scoreFor(rowId.toStdString()).value_or(-1);
}

QString TovuMultiNPSQuestionViewModel::lowLabel() const
{
    return TovuNPSBands::lowLabel(TovuNPSBands::labelsOf(question()));
}

QString TovuMultiNPSQuestionViewModel::highLabel() const
{
    return TovuNPSBands::highLabel(TovuNPSBands::labelsOf(question()));
}

QColor TovuMultiNPSQuestionViewModel::bandColor(int score) const
{
    return TovuNPSBands::colorOf(score, TovuNPSBands::labelsOf(question()));
}

TovuNPSBands::Look TovuMultiNPSQuestionViewModel::scoreLook(const std::string &rowId, int score) const
{
    return TovuNPSBands::look(bandColor(score), TovuNPSBands::emphasisOf(score, scoreFor(rowId)));
}

void TovuMultiNPSQuestionViewModel::selectScore(const QString &rowId, int score)
{
    const std::string id = rowId.toStdString();
    if (!isRow(id) || !TovuNPSBands::isScore(score))
        return;
    setValidationVisible(false);
    m_selectedScores[id] = {score, scaleColumnId(static_cast<std::size_t>(score), score)};
    Q_EMIT selectedScoresChanged(rowId);
}

void TovuMultiNPSQuestionViewModel::submitQuestion(const TovuQuestion &question)
{
    if (question.isRequired && m_selectedScores.size() < rowCount()) {
        refuse();
        return;
    }
    if (m_selectedScores.empty())
        return;
    setValidationVisible(false);
    // Row order keeps responses stable; a row id shared by two options counts once.
    TovuAnswer answer{.questionId = question.id, .value = {}};
    std::set<std::string> reported;
    for (const TovuChoice &row : options()) {
        const auto rated = m_selectedScores.find(row.id);
        if (rated != m_selectedScores.end() && reported.insert(row.id).second)
            answer.value.push_back({.rowId = row.id, .colId = rated->second.second});
    }
    report(answer);
}

bool TovuMultiNPSQuestionViewModel::isRow(const std::string &rowId) const
{
    return std::ranges::any_of(options(), [&rowId](const TovuChoice &row) { return row.id == rowId; });
}

std::size_t TovuMultiNPSQuestionViewModel::rowCount() const
{
    std::set<std::string> ids;
    for (const TovuChoice &row : options())
        ids.insert(row.id);
    return ids.size();
}

QVariantMap TovuMultiNPSQuestionViewModel::scoreStyle(const QString &rowId, int score) const
{
    return TovuNPSBands::styleOf(scoreLook(rowId.toStdString(), score));
}
