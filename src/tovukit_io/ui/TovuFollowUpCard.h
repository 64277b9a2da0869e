#pragma once

#include <tovukit_io/model/TovuSurvey.h>
#include <tovukit_io/ui/kit/TovuBox.h>

#include <QList>

#include <vector>

class QLabel;
class QVBoxLayout;
class TovuButton;
class TovuTextArea;

/// The card a score or rating page opens under its scale to ask a follow-up
/// question: the question (15 semibold), then either a free-text area or a column
/// of single-choice option buttons. Grey (system gray 6) with a 12 radius, its
/// content 14 in from every edge; hidden until a page shows it.
///
/// The card only shows; the page's view model decides which follow-up applies and
/// what is chosen.
class TovuFollowUpCard : public TovuBox
{
    Q_OBJECT

public:
    explicit TovuFollowUpCard(QWidget *parent = nullptr);
    ~TovuFollowUpCard() override;

    QLabel *titleLabel() const { return m_titleLabel; }
    TovuTextArea *textArea() const { return m_textArea; }
    /// Holds the option buttons of a single-choice follow-up.
    QVBoxLayout *choiceStack() const { return m_choiceStack; }
    /// The option buttons, in option order; each one's objectName is its option's id.
    const QList<TovuButton *> &choiceButtons() const { return m_choiceButtons; }

    /// Asks `question` in free text: an empty text area, no options.
    void showText(const QString &question);
    /// Asks `question` with one radio button per option; the text area hides but keeps
    /// its text. Returns the new buttons (the previous ones are deleted later).
    const QList<TovuButton *> &showChoices(const QString &question, const std::vector<TovuChoice> &options);
    /// Marks the option with `selectedId` (none when empty) in `accent`.
    void restyle(const QString &selectedId, const QColor &accent);

private:
    void clearChoices();

    QLabel *m_titleLabel = nullptr;
    TovuTextArea *m_textArea = nullptr;
    QVBoxLayout *m_choiceStack = nullptr;
    QWidget *m_choiceContainer = nullptr;
    QList<TovuButton *> m_choiceButtons;
};
