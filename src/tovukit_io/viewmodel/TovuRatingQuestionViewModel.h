#pragma once

#include <tovukit_io/model/TovuRatingVariant.h>
#include <tovukit_io/viewmodel/TovuQuestionViewModel.h>

#include <QColor>

#include <optional>

/// A rating page: one row of buttons (stars, hearts, circles, tiles, emoji faces or
/// numbers), one per column of the question, else `maxRating` of them (at least one, at
/// most maxButtonCount).
///
/// A tap chooses a rating (1-based) and reveals the action. Stars and numbers fill up
/// to the rating; hearts, circles, tiles and faces mark only the tapped one. A
/// follow-up question may open for the rating: the first conditional follow-up whose
/// range holds it, else the question's own follow-up; it turns the action into
/// "Submit". Its free text only prompts the respondent: it is never reported.
///
/// The action reports {rowId: first option's id (else a fresh id), colId: the column's
/// id at the rating (else the rating in decimal)}; before a tap it does nothing.
///
/// \code
/// TovuRatingQuestionViewModel model(question, TovuRatingVariant::star, 5, false);
/// model.onAnswer = [](const TovuAnswer &answer) { ... };
/// model.rate(3);
/// model.isSelected(2); // true: stars fill up to the rating
/// model.submit();      // {questionId, [{rowId, colId: "3"}]}
/// \endcode
class TovuRatingQuestionViewModel : public TovuQuestionViewModel
{
    Q_OBJECT
    /// The variant's raw value: "STAR", "HEART", "CIRCLE", "TILE", "EMOJI" or "NUMERIC".
    Q_PROPERTY(QString variantName READ variantName CONSTANT)
    Q_PROPERTY(int maxRating READ maxRating CONSTANT)
    Q_PROPERTY(int buttonCount READ buttonCount CONSTANT)
    /// The column texts shown under the buttons, in rating order; empty when the
    /// question shows none.
    Q_PROPERTY(QStringList columnLabels READ columnLabels CONSTANT)
    /// The chosen rating, 0 before the first tap.
    Q_PROPERTY(int rating READ rating NOTIFY selectedRatingChanged)
    Q_PROPERTY(QString followUpText READ followUpText NOTIFY followUpChanged)
    Q_PROPERTY(bool followUpVisible READ isFollowUpVisible NOTIFY followUpChanged)

public:
    TovuRatingQuestionViewModel(std::optional<TovuQuestion> question, TovuRatingVariant variant, int maxRating,
                                bool isLastQuestion, QObject *parent = nullptr);

    TovuRatingVariant variant() const { return m_variant; }
    QString variantName() const;
    int maxRating() const { return m_maxRating; }
    int buttonCount() const;
    QStringList columnLabels() const;
    /// The label under the button for `rating`; none when labels are off or it has no column.
    std::optional<QString> columnLabel(int rating) const;

    std::optional<int> selectedRating() const { return m_selectedRating; }
    int rating() const { return m_selectedRating.value_or(0); }
    /// Whether the button for `rating` shows as chosen.
    Q_INVOKABLE bool isSelected(int rating) const;
    /// The colour of chosen symbols: the question's ratingColor, else the platform orange
    /// of the current appearance (so read it again when the palette changes).
    Q_INVOKABLE QColor activeColor() const;

    /// The follow-up question for the chosen rating; empty without one.
    QString followUpText() const { return m_followUpText.value_or(QString()); }
    bool isFollowUpVisible() const { return m_followUpText.has_value(); }

    /// What the button for `rating` shows: a symbol name ("star", "heart.fill", …; empty
    /// for faces and numbers), or its title (a face or the number; empty for symbols).
    Q_INVOKABLE QString symbolName(int rating) const;
    Q_INVOKABLE QString buttonTitle(int rating) const;
    /// What a screen reader says for the button: "3 of 5 stars", and its label if shown.
    Q_INVOKABLE QString accessibleName(int rating) const;

    /// Chooses `rating` (again, if chosen), opens or closes the follow-up and shows the
    /// action; a rating outside 1…buttonCount is ignored.
    Q_INVOKABLE void rate(int rating);

    // What the rating and multi-rating pages share.

    /// Whether chosen symbols of `variant` fill every button up to the rating (star,
    /// numeric) rather than only the chosen one.
    static bool isCumulative(TovuRatingVariant variant);
    /// The symbol of `variant`, filled or outlined; numeric draws stars, emoji none.
    static QString symbolFor(TovuRatingVariant variant, bool filled);
    /// The face for a 1-based position: 😞 😕 😐 🙂 😁, then ⭐ from 6 on.
    static QString emojiFace(int position);
    /// "3 of 5 stars", "3 of 5 hearts", …; "3 of 5" for faces and numbers.
    static QString scaleName(TovuRatingVariant variant, int position, int count);
    /// `question`'s ratingColor when it is a usable colour, else the platform orange.
    static QColor activeColorFor(const std::optional<TovuQuestion> &question);

    /// Sizes and motion both front ends draw with.
    static constexpr qreal symbolPointSize = 32;
    static constexpr qreal emojiSize = 34;
    static constexpr qreal chosenEmojiSize = 42;
    static constexpr qreal fadedOpacity = 0.45;
    static constexpr qreal tapScale = 1.2;
    static constexpr qreal tapSeconds = 0.1;
    /// The most buttons `maxRating` alone asks for: a runaway number must not build a
    /// million widgets.
    static constexpr int maxButtonCount = 100;

Q_SIGNALS:
    /// Also emitted when the chosen rating is chosen again.
    void selectedRatingChanged();
    void followUpChanged();

protected:
    void submitQuestion(const TovuQuestion &question) override;

private:
    std::optional<QString> followUpFor(int rating) const;

    TovuRatingVariant m_variant;
    int m_maxRating;
    std::optional<int> m_selectedRating;
    std::optional<QString> m_followUpText;
};
