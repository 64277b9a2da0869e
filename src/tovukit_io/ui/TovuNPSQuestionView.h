#pragma once

#include <tovukit_io/model/TovuSurvey.h>
#include <tovukit_io/ui/TovuQuestionView.h>
#include <tovukit_io/viewmodel/TovuNPSBands.h>
#include <tovukit_io/viewmodel/TovuNPSQuestionViewModel.h>

#include <QFont>
#include <QList>
#include <QString>

#include <functional>
#include <optional>
#include <string>

class QHBoxLayout;
class QLabel;
class QVBoxLayout;
class TovuButton;
class TovuEqualWidthLayout;
class TovuFollowUpCard;
class TovuTextArea;

/// An NPS question: eleven score buttons from 0 to 10 coloured by band (red
/// detractors, amber passives, green promoters), the scale's end labels, and once a
/// score is chosen the follow-up that score asks for (free text or a single-choice
/// list, in a grey card) and the action button.
///
/// The page draws its TovuNPSQuestionViewModel, which decides the follow-up and the
/// answers. The follow-up's answer arrives through `onAdditionalAnswer`, then the
/// score's through `onAnswer`; the page never advances itself.
///
/// \code
/// auto *page = new TovuNPSQuestionView(question, isLast);
/// page->onAdditionalAnswer = [](const TovuAnswer &followUp) { ... };
/// page->onAnswer = [](const TovuAnswer &score) { ... };
/// sheet->setQuestionView(page);
/// \endcode
class TovuNPSQuestionView : public TovuQuestionView
{
    Q_OBJECT

public:
    explicit TovuNPSQuestionView(TovuQuestion question, bool isLastQuestion, QWidget *parent = nullptr);
    ~TovuNPSQuestionView() override;

    QLabel *titleLabel() const { return m_titleLabel; }
    /// Hidden when the question has no subtitle.
    QLabel *subtitleLabel() const { return m_subtitleLabel; }
    /// The eleven score buttons, of equal width.
    TovuEqualWidthLayout *npsRow() const { return m_npsRow; }
    QHBoxLayout *labelsStack() const { return m_labelsStack; }
    QLabel *lowLabel() const { return m_lowLabel; }
    QLabel *highLabel() const { return m_highLabel; }
    TovuFollowUpCard *followUpCard() const { return m_followUpCard; }
    QLabel *followUpTitle() const;
    TovuTextArea *followUpText() const;
    QVBoxLayout *followUpChoiceStack() const;
    /// The option buttons of a single-choice follow-up; each one's objectName is its option's id.
    const QList<TovuButton *> &followUpOptionButtons() const;
    TovuButton *actionButton() const { return m_actionButton; }
    /// The score buttons; index and `tag` are the score.
    const QList<TovuButton *> &npsButtons() const { return m_npsButtons; }
    const std::optional<TovuQuestion> &question() const;
    std::optional<int> selectedScore() const;
    bool isLastQuestion() const;
    std::optional<std::string> selectedFollowUpOptionId() const;
    TovuNPSQuestionViewModel *viewModel() const { return m_model; }

    /// Told with the follow-up's answer, before `onAnswer` hears of the score.
    std::function<void(const TovuAnswer &)> onAdditionalAnswer;

    /// What a tap on a score button does: chooses its score (with a bump) and opens
    /// the follow-up for it.
    void npsTapped(TovuButton *button);
    /// What a tap on a follow-up option does: chooses it.
    void followUpOptionTapped(TovuButton *button);
    /// What a tap on the action button does: reports the follow-up, then the score.
    void actionTapped();

protected:
    void restyle() override;

private:
    TovuNPSQuestionView(TovuNPSQuestionViewModel *model, QWidget *parent);
    void buildFollowUpCard();
    void showFollowUp();

    TovuNPSQuestionViewModel *m_model = nullptr;
    QLabel *m_titleLabel = nullptr;
    QLabel *m_subtitleLabel = nullptr;
    TovuEqualWidthLayout *m_npsRow = nullptr;
    QHBoxLayout *m_labelsStack = nullptr;
    QLabel *m_lowLabel = nullptr;
    QLabel *m_highLabel = nullptr;
    TovuFollowUpCard *m_followUpCard = nullptr;
    TovuButton *m_actionButton = nullptr;
    QList<TovuButton *> m_npsButtons;
};
