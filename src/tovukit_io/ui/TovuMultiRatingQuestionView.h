#pragma once

#include <tovukit_io/model/TovuRatingVariant.h>
#include <tovukit_io/model/TovuSurvey.h>
#include <tovukit_io/ui/TovuQuestionView.h>
#include <tovukit_io/viewmodel/TovuMultiRatingQuestionViewModel.h>

#include <QList>

#include <map>
#include <optional>
#include <string>

class QLabel;
class QVBoxLayout;
class TovuCaptionRow;
class TovuScrollStrip;

/// A multi-rating question: one block per row item (the question's options), each
/// with its text, a strip of rating buttons, one per column (symbols, numbers drawn as
/// stars, or emoji faces), and a separator; then the validation message and the
/// action button, which reports every rated row in one answer.
///
/// Below six columns the buttons share the strip's width; from six on they keep their
/// natural widths and the strip scrolls sideways. Each button's objectName is
/// "rowId::columnId"; the page draws its TovuMultiRatingQuestionViewModel.
///
/// \code
/// auto *page = new TovuMultiRatingQuestionView(question, ratingVariantFrom(question.ratingStyle), isLast);
/// page->onAnswer = [](const TovuAnswer &answer) { ... };
/// \endcode
class TovuMultiRatingQuestionView : public TovuQuestionView
{
    Q_OBJECT

public:
    TovuMultiRatingQuestionView(TovuQuestion question, TovuRatingVariant variant, bool isLastQuestion,
                                QWidget *parent = nullptr);
    ~TovuMultiRatingQuestionView() override;

    QLabel *titleLabel() const { return m_titleLabel; }
    /// Hidden when the question has no subtitle.
    QLabel *subtitleLabel() const { return m_subtitleLabel; }
    /// One block per row, in option order.
    QVBoxLayout *rowsStack() const { return m_rowsStack; }
    QLabel *validationLabel() const { return m_validationLabel; }
    TovuButton *actionButton() const { return m_actionButton; }
    const std::optional<TovuQuestion> &question() const;
    TovuRatingVariant variant() const;
    bool isLastQuestion() const;
    /// Row id to the chosen column id, one entry per rated row.
    std::map<std::string, std::string> selectedCols() const;
    /// Each row's buttons in column order; a button's `tag` is its 1-based column position.
    const std::map<std::string, QList<TovuButton *>> &rowButtons() const { return m_rowButtons; }
    /// The button strips, in row order.
    const QList<TovuScrollStrip *> &buttonStrips() const { return m_strips; }
    TovuMultiRatingQuestionViewModel *viewModel() const { return m_model; }

    /// What a tap on `button` does: rates its row with its column and bumps it.
    void colTapped(TovuButton *button);
    /// What a tap on the action does: reports the ratings, or refuses an incomplete
    /// required grid.
    void actionTapped();

    /// From six columns on, a column is this wide, or as wide as its label needs (up to
    /// twice as wide), and the strip scrolls.
    static constexpr int naturalColumnWidth = TovuMultiRatingQuestionViewModel::naturalColumnWidth;

protected:
    void restyle() override;

private:
    TovuMultiRatingQuestionView(TovuMultiRatingQuestionViewModel *model, QWidget *parent);

    void addRow(int row, const QString &rowId, const QString &text);
    TovuScrollStrip *buttonStrip(int row, const std::string &rowId);
    TovuButton *makeButton(int row, const std::string &rowId, int position, QWidget *strip);
    int columnWidth(int position, const TovuCaptionRow *captions);
    void restyleRow(const QString &rowId);
    void bump(const QString &rowId, const QString &identifier);

    TovuMultiRatingQuestionViewModel *m_model = nullptr;
    QLabel *m_titleLabel = nullptr;
    QLabel *m_subtitleLabel = nullptr;
    QVBoxLayout *m_rowsStack = nullptr;
    QLabel *m_validationLabel = nullptr;
    TovuButton *m_actionButton = nullptr;
    std::map<std::string, QList<TovuButton *>> m_rowButtons;
    QList<TovuScrollStrip *> m_strips;
    QList<QLabel *> m_rowLabels;
    // Each strip's content, which paints the column labels under its buttons.
    QList<TovuCaptionRow *> m_captionRows;
    QList<int> m_columnWidths;
};
