#pragma once

#include <tovukit_io/viewmodel/TovuNPSBands.h>
#include <tovukit_io/viewmodel/TovuQuestionViewModel.h>

#include <QVariantMap>

#include <map>
#include <optional>
#include <string>
#include <utility>

/// A multi-NPS page: one 0 to 10 scale per row (the question's options), each rated
/// on its own, all reported together by one action ("Next →", or "Submit" on the last
/// question, shown from the start).
///
/// A required question with a row left unrated is refused ("Please rate all items.",
/// and the message shakes); a page with no rating at all reports nothing, required or
/// not. Otherwise the answer holds one value per rated row, in row order: the row's
/// id and the column id of its score (the column at the score's index, else the score
/// in decimal). Rating a row again replaces its score.
///
/// \code
/// TovuMultiNPSQuestionViewModel model(question, false);
/// model.onAnswer = [](const TovuAnswer &answer) { ... };
/// model.selectScore(QStringLiteral("row-1"), 9);
/// model.submit();
/// \endcode
class TovuMultiNPSQuestionViewModel : public TovuQuestionViewModel
{
    Q_OBJECT
    Q_PROPERTY(QString lowLabel READ lowLabel CONSTANT)
    Q_PROPERTY(QString highLabel READ highLabel CONSTANT)
    /// The end labels' fixed colours: the detractor red and the promoter green.
    Q_PROPERTY(QColor lowLabelColor READ lowLabelColor CONSTANT)
    Q_PROPERTY(QColor highLabelColor READ highLabelColor CONSTANT)
    /// Row id to its chosen score, for the rated rows.
    Q_PROPERTY(QVariantMap scores READ scores NOTIFY selectedScoresChanged)
    Q_PROPERTY(int ratedCount READ ratedCount NOTIFY selectedScoresChanged)

public:
    /// A rated row: its score and the column id reported for it.
    using Rating = std::pair<int, std::string>;

    explicit TovuMultiNPSQuestionViewModel(std::optional<TovuQuestion> question, bool isLastQuestion,
                                           QObject *parent = nullptr);

    /// Row id to (score, column id), one entry per rated row.
    const std::map<std::string, Rating> &selectedScores() const { return m_selectedScores; }
    QVariantMap scores() const;
    int ratedCount() const { return static_cast<int>(m_selectedScores.size()); }
    /// The score chosen for `rowId`, none while it is unrated.
    std::optional<int> scoreFor(const std::string &rowId) const;
    /// As scoreFor(), -1 while unrated.
    Q_INVOKABLE int scoreOf(const QString &rowId) const;

    QString lowLabel() const;
    QString highLabel() const;
    /// The band colour of `score`, with the question's overrides.
    Q_INVOKABLE QColor bandColor(int score) const;
    /// How the button of `score` in the row `rowId` looks in the current state.
    TovuNPSBands::Look scoreLook(const std::string &rowId, int score) const;
    /// The same for QML: `background`, `title` and `border` colours and `borderWidth`.
    Q_INVOKABLE QVariantMap scoreStyle(const QString &rowId, int score) const;
    QColor lowLabelColor() const { return TovuNPSBands::lowLabelColor(); }
    QColor highLabelColor() const { return TovuNPSBands::highLabelColor(); }

    /// Rates the row `rowId` with `score` and hides the validation message; an id no
    /// row has, or a score off the scale, is ignored.
    Q_INVOKABLE void selectScore(const QString &rowId, int score);

Q_SIGNALS:
    /// `rowId` was rated (again).
    void selectedScoresChanged(const QString &rowId);

protected:
    void submitQuestion(const TovuQuestion &question) override;

private:
    bool isRow(const std::string &rowId) const;
    /// The rows to rate: the distinct ids of the options.
    std::size_t rowCount() const;

    std::map<std::string, Rating> m_selectedScores;
};
