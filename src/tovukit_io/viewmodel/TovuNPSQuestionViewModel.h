#pragma once

#include <tovukit_io/viewmodel/TovuNPSBands.h>
#include <tovukit_io/viewmodel/TovuQuestionViewModel.h>

#include <QVariantMap>

#include <optional>
#include <string>
#include <vector>

/// An NPS page: a 0 to 10 scale in coloured bands and, once a score is chosen, the
/// follow-up that score asks for, in free text or as a single-choice list.
///
/// The follow-up is the first conditional follow-up whose range holds the score,
/// else the question's own follow-up question, else none. Any follow-up makes the
/// action read "Submit"; without one it reads "Next →", or "Submit" on the last
/// question. The action appears with the first score. Choosing another score
/// replaces the follow-up and forgets the chosen option and (for a text follow-up)
/// the typed text.
///
/// Submitting with a score reports the follow-up's answer through
/// `onAdditionalAnswer` first (when there is one to report), then the score
/// through `onAnswer`: row id = the first option's id (else a fresh random id),
/// column id = the column at the score's index (else the score in decimal).
///
/// \code
/// TovuNPSQuestionViewModel model(question, false);
/// model.onAdditionalAnswer = [](const TovuAnswer &followUp) { ... };
/// model.onAnswer = [](const TovuAnswer &score) { ... };
/// model.selectScore(3);
/// model.setFollowUpText(QStringLiteral("Too slow"));
/// model.submit();
/// \endcode
class TovuNPSQuestionViewModel : public TovuQuestionViewModel
{
    Q_OBJECT
    /// The chosen score, -1 before the first.
    Q_PROPERTY(int selectedScore READ selectedScoreOrNone NOTIFY selectedScoreChanged)
    Q_PROPERTY(FollowUpKind followUpKind READ followUpKind NOTIFY followUpChanged)
    /// Whether the follow-up card is up: any kind but none.
    Q_PROPERTY(bool followUpShown READ isFollowUpShown NOTIFY followUpChanged)
    /// The follow-up's question; empty while none is shown.
    Q_PROPERTY(QString followUpQuestion READ followUpQuestion NOTIFY followUpChanged)
    /// The options of a single-choice follow-up, in order; empty otherwise.
    Q_PROPERTY(QStringList followUpOptionIds READ followUpOptionIds NOTIFY followUpChanged)
    Q_PROPERTY(QStringList followUpOptionTexts READ followUpOptionTexts NOTIFY followUpChanged)
    /// The chosen follow-up option's id; empty before a choice.
    Q_PROPERTY(
        QString selectedFollowUpOptionId READ selectedFollowUpOptionIdText NOTIFY selectedFollowUpOptionIdChanged)
    /// What the respondent typed as the follow-up, as typed.
    Q_PROPERTY(QString followUpText READ followUpText WRITE setFollowUpText NOTIFY followUpTextChanged)
    Q_PROPERTY(QString lowLabel READ lowLabel CONSTANT)
    Q_PROPERTY(QString highLabel READ highLabel CONSTANT)
    /// The end labels' fixed colours: the detractor red and the promoter green.
    Q_PROPERTY(QColor lowLabelColor READ lowLabelColor CONSTANT)
    Q_PROPERTY(QColor highLabelColor READ highLabelColor CONSTANT)

public:
    enum class FollowUpKind { none, text, singleChoice };
    Q_ENUM(FollowUpKind)

    explicit TovuNPSQuestionViewModel(std::optional<TovuQuestion> question, bool isLastQuestion,
                                      QObject *parent = nullptr);

    std::optional<int> selectedScore() const { return m_selectedScore; }
    int selectedScoreOrNone() const { return m_selectedScore.value_or(-1); }

    FollowUpKind followUpKind() const { return m_followUpKind; }
    bool isFollowUpShown() const { return m_followUpKind != FollowUpKind::none; }
    QString followUpQuestion() const { return m_followUpQuestion; }
    const std::vector<TovuChoice> &followUpOptions() const { return m_followUpOptions; }
    QStringList followUpOptionIds() const;
    QStringList followUpOptionTexts() const;
    const std::optional<std::string> &selectedFollowUpOptionId() const { return m_selectedFollowUpOptionId; }
    QString selectedFollowUpOptionIdText() const;
    QString followUpText() const { return m_followUpText; }

    QString lowLabel() const;
    QString highLabel() const;
    /// The band colour of `score`, with the question's overrides.
    Q_INVOKABLE QColor bandColor(int score) const;
    /// How the button of `score` looks in the current state.
    TovuNPSBands::Look scoreLook(int score) const;
    /// The same for QML: `background`, `title` and `border` colours and `borderWidth`.
    Q_INVOKABLE QVariantMap scoreStyle(int score) const;
    QColor lowLabelColor() const { return TovuNPSBands::lowLabelColor(); }
    QColor highLabelColor() const { return TovuNPSBands::highLabelColor(); }

    /// Chooses `score` (again, if it is already chosen) and shows its follow-up; a
    /// score off the scale is ignored.
    Q_INVOKABLE void selectScore(int score);
    /// Chooses the follow-up option with `optionId`; ignored unless the follow-up
    /// shown is a single-choice list holding that id.
    Q_INVOKABLE void selectFollowUpOption(const QString &optionId);
    /// The follow-up text as the respondent types it.
    void setFollowUpText(const QString &text);

    /// Where the follow-up's answer goes, before the score's; may be left unset.
    std::function<void(const TovuAnswer &)> onAdditionalAnswer;

Q_SIGNALS:
    /// Also emitted when the chosen score is chosen again.
    void selectedScoreChanged();
    /// The follow-up was set up anew (every score choice does so).
    void followUpChanged();
    void selectedFollowUpOptionIdChanged();
    void followUpTextChanged();

protected:
    void submitQuestion(const TovuQuestion &question) override;

private:
    void showFollowUp(FollowUpKind kind, const std::string &question, std::vector<TovuChoice> options);
    std::optional<TovuAnswer> followUpAnswer(const TovuQuestion &question, int score) const;
    /// The typed text, without leading and trailing blanks, as a text answer; none when
    /// nothing is left.
    std::optional<TovuAnswer> textAnswer(const std::string &questionId, const std::string &rowId) const;

    std::optional<int> m_selectedScore;
    FollowUpKind m_followUpKind = FollowUpKind::none;
    QString m_followUpQuestion;
    std::vector<TovuChoice> m_followUpOptions;
    std::optional<std::string> m_selectedFollowUpOptionId;
    QString m_followUpText;
};
