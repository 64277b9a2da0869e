#pragma once

#include <tovukit_io/model/TovuRatingVariant.h>
#include <tovukit_io/model/TovuSurvey.h>
#include <tovukit_io/ui/TovuQuestionView.h>
#include <tovukit_io/viewmodel/TovuRatingQuestionViewModel.h>

#include <QList>
#include <QString>

#include <optional>

class QLabel;
class TovuEqualWidthLayout;
class TovuFollowUpCard;
class TovuSymbolButton;
class TovuTextArea;

/// A rating question: one row of rating buttons sharing the width (stars, hearts,
/// circles, tiles, emoji faces or numbers), the column texts under them when the
/// question shows them, a follow-up card that opens for the chosen rating, and an
/// action button, hidden until the first tap, that reports the rating.
///
/// The page draws its TovuRatingQuestionViewModel, which decides what a tap chooses and
/// which follow-up applies; the text typed into the follow-up is never reported.
///
/// \code
/// auto *page = new TovuRatingQuestionView(question, ratingVariantFrom(question.ratingStyle), 5, isLast);
/// page->onAnswer = [](const TovuAnswer &answer) { ... };
/// sheet->setQuestionView(page);
/// \endcode
class TovuRatingQuestionView : public TovuQuestionView
{
    Q_OBJECT

public:
    TovuRatingQuestionView(TovuQuestion question, TovuRatingVariant variant, int maxRating, bool isLastQuestion,
                           QWidget *parent = nullptr);
    ~TovuRatingQuestionView() override;

    QLabel *titleLabel() const { return m_titleLabel; }
    /// The buttons, or button-over-label columns, in rating order.
    TovuEqualWidthLayout *ratingRow() const { return m_ratingRow; }
    TovuFollowUpCard *followUpCard() const { return m_followUpCard; }
    QLabel *followUpTitle() const;
    TovuTextArea *followUpText() const;
    TovuButton *actionButton() const { return m_actionButton; }
    const std::optional<TovuQuestion> &question() const;
    TovuRatingVariant variant() const;
    int maxRating() const;
    std::optional<int> selectedRating() const;
    bool isLastQuestion() const;
    /// In rating order; each one's `tag` is its rating. Symbol variants are TovuSymbolButtons.
    const QList<TovuButton *> &ratingButtons() const { return m_ratingButtons; }
    TovuRatingQuestionViewModel *viewModel() const { return m_model; }

    /// What a tap on `button` does: chooses its rating and bumps it.
    void ratingTapped(TovuButton *button);
    /// What a tap on the action does: reports the rating, once one is chosen.
    void actionTapped();

protected:
    void restyle() override;

private:
    TovuRatingQuestionView(TovuRatingQuestionViewModel *model, QWidget *parent);

    TovuButton *makeButton(int rating);
    void styleButton(TovuButton *button, const QColor &accent, const QColor &active);
    void showFollowUp();

    TovuRatingQuestionViewModel *m_model = nullptr;
    QLabel *m_titleLabel = nullptr;
    TovuEqualWidthLayout *m_ratingRow = nullptr;
    TovuFollowUpCard *m_followUpCard = nullptr;
    TovuButton *m_actionButton = nullptr;
    QList<TovuButton *> m_ratingButtons;
    QList<QLabel *> m_columnLabels;
};
