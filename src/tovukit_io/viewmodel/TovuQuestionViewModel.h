#pragma once

#include <tovukit_io/model/TovuAnswer.h>
#include <tovukit_io/model/TovuSurvey.h>

#include <QObject>
#include <QString>
#include <QStringList>

#include <cstdint>
#include <functional>
#include <optional>

/// What every question page shares, whatever draws it: the question, the action
/// button's title and visibility, the validation message, and the one way answers
/// leave the page (`onAnswer`). Subclasses add the page's own state and decide
/// what a tap does; a page never advances by itself.
///
/// The validation message appears when submit() refuses the input (and
/// `shakeRequested` asks the front end to shake); it hides again on the next
/// tap that changes the answer.
class TovuQuestionViewModel : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QString questionId READ questionId CONSTANT)
    Q_PROPERTY(QString title READ title CONSTANT)
    Q_PROPERTY(QString subtitle READ subtitle CONSTANT)
    Q_PROPERTY(bool isRequired READ isRequired CONSTANT)
    Q_PROPERTY(bool isLastQuestion READ isLastQuestion CONSTANT)
    Q_PROPERTY(QStringList optionTexts READ optionTexts CONSTANT)
    Q_PROPERTY(QStringList optionIds READ optionIds CONSTANT)
    Q_PROPERTY(QString actionTitle READ actionTitle NOTIFY actionTitleChanged)
    Q_PROPERTY(bool actionVisible READ isActionVisible NOTIFY actionVisibleChanged)
    Q_PROPERTY(QString validationMessage READ validationMessage CONSTANT)
    Q_PROPERTY(bool validationVisible READ isValidationVisible NOTIFY validationVisibleChanged)

public:
    ~TovuQuestionViewModel() override;

    const std::optional<TovuQuestion> &question() const { return m_question; }
    QString questionId() const;
    QString title() const;
    /// Empty when the question has none.
    QString subtitle() const;
    bool isRequired() const;
    bool isLastQuestion() const { return m_isLastQuestion; }
    /// The texts and ids of the question's options, in order; empty without options.
    QStringList optionTexts() const;
    QStringList optionIds() const;

    QString actionTitle() const { return m_actionTitle; }
    bool isActionVisible() const { return m_actionVisible; }
    QString validationMessage() const { return m_validationMessage; }
    bool isValidationVisible() const { return m_validationVisible; }

    /// The action button: reports the answer, refuses with the validation message,
    /// or does nothing, as the page type decides.
    Q_INVOKABLE void submit();

    /// Where answers go; may be left unset.
    std::function<void(const TovuAnswer &)> onAnswer;

    /// "Submit" on the last question, else "Next →".
    static QString actionTitleFor(bool isLastQuestion);
    /// A new random identifier in upper-case UUID text, for answers without one.
    static QString freshId();

Q_SIGNALS:
    void actionTitleChanged();
    void actionVisibleChanged();
    void validationVisibleChanged();
    /// Input was refused: the front end shakes the page (or its message).
    void shakeRequested();

protected:
    TovuQuestionViewModel(std::optional<TovuQuestion> question, bool isLastQuestion, QString validationMessage,
                          QObject *parent);

    /// The page's own submit logic; only called when there is a question.
    virtual void submitQuestion(const TovuQuestion &question) = 0;

    const std::vector<TovuChoice> &options() const;
    /// The option at `index`, none outside the options.
    std::optional<TovuChoice> optionAt(int index) const;
    /// The row id of a scale's answer: the first option's id, else a fresh random id
    /// (new on every call).
    std::string scaleRowId() const;
    /// The column id of the scale point at `index` (0-based): that column's id when the
    /// question has one there, else `value` in decimal.
    std::string scaleColumnId(std::size_t index, std::int64_t value) const;
    /// The first conditional follow-up, in list order, whose range holds `score` (both
    /// ends included); none without a question, a list or a match.
    const TovuConditionalFollowUp *conditionalFollowUpFor(std::int64_t score) const;
    /// Reports `choice` as the answer; without one, refuses a required question and
    /// does nothing for an optional one (it is left through Skip).
    void submitChoice(const TovuQuestion &question, const std::optional<TovuChoice> &choice);
    /// Shows the validation message and asks for the shake.
    void refuse();
    /// Hands `answer` to `onAnswer`, if set.
    void report(const TovuAnswer &answer);
    void setValidationVisible(bool visible);
    void setActionTitle(const QString &title);
    void setActionVisible(bool visible);

private:
    std::optional<TovuQuestion> m_question;
    bool m_isLastQuestion = false;
    QString m_actionTitle;
    bool m_actionVisible = true;
    QString m_validationMessage;
    bool m_validationVisible = false;
};
