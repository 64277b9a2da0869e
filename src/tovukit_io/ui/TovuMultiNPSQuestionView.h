#pragma once

#include <tovukit_io/model/TovuSurvey.h>
#include <tovukit_io/ui/TovuQuestionView.h>
#include <tovukit_io/viewmodel/TovuMultiNPSQuestionViewModel.h>

#include <QList>

#include <map>
#include <optional>
#include <string>

class QLabel;
class QVBoxLayout;
class TovuButton;
class TovuHairline;

/// A multi-NPS question: one 0 to 10 scale per row item (the question's options),
/// each under the row's text and over its own end labels, and one action button
/// ("Next →", or "Submit" on the last question) that reports every rated row.
///
/// The page draws its TovuMultiNPSQuestionViewModel. A required question with a row
/// left unrated shows "Please rate all items." and shakes it; the answer arrives
/// through `onAnswer`, one value per rated row in row order.
///
/// \code
/// auto *page = new TovuMultiNPSQuestionView(question, isLast);
/// page->onAnswer = [](const TovuAnswer &answer) { ... };
/// sheet->setQuestionView(page);
/// \endcode
class TovuMultiNPSQuestionView : public TovuQuestionView
{
    Q_OBJECT

public:
    explicit TovuMultiNPSQuestionView(TovuQuestion question, bool isLastQuestion, QWidget *parent = nullptr);
    ~TovuMultiNPSQuestionView() override;

    QLabel *titleLabel() const { return m_titleLabel; }
    /// Hidden when the question has no subtitle.
    QLabel *subtitleLabel() const { return m_subtitleLabel; }
    /// One block per row: its text, its scale, its end labels and a separator.
    QVBoxLayout *rowsStack() const { return m_rowsStack; }
    QLabel *validationLabel() const { return m_validationLabel; }
    TovuButton *actionButton() const { return m_actionButton; }
    /// Per row, in row order: the row's text, its eleven score buttons (index and `tag`
    /// are the score, objectName the row's id), its end labels and its separator.
    const QList<QLabel *> &rowLabels() const { return m_rowLabels; }
    const QList<QList<TovuButton *>> &scoreButtons() const { return m_scoreButtons; }
    const QList<QLabel *> &lowLabels() const { return m_lowLabels; }
    const QList<QLabel *> &highLabels() const { return m_highLabels; }
    const QList<TovuHairline *> &separators() const { return m_separators; }
    const std::optional<TovuQuestion> &question() const;
    bool isLastQuestion() const;
    /// Row id to (score, column id), one entry per rated row.
    const std::map<std::string, TovuMultiNPSQuestionViewModel::Rating> &selectedScores() const;
    TovuMultiNPSQuestionViewModel *viewModel() const { return m_model; }

    /// What a tap on a score button does: rates its row (with a bump).
    void scoreTapped(TovuButton *button);
    /// What a tap on the action button does: reports the rated rows, or asks for the rest.
    void actionTapped();

protected:
    void restyle() override;

private:
    TovuMultiNPSQuestionView(TovuMultiNPSQuestionViewModel *model, QWidget *parent);
    void addRow(const QString &rowId, const QString &text);

    TovuMultiNPSQuestionViewModel *m_model = nullptr;
    QLabel *m_titleLabel = nullptr;
    QLabel *m_subtitleLabel = nullptr;
    QVBoxLayout *m_rowsStack = nullptr;
    QLabel *m_validationLabel = nullptr;
    TovuButton *m_actionButton = nullptr;
    QList<QLabel *> m_rowLabels;
    QList<QList<TovuButton *>> m_scoreButtons;
    QList<QLabel *> m_lowLabels;
    QList<QLabel *> m_highLabels;
    QList<TovuHairline *> m_separators;
};
