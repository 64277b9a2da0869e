#include <tovukit_io/ui/TovuMultiRatingQuestionView.h>

#include "TovuQuestionParts.h"
#include "TovuRatingParts.h"

#include <tovukit_io/ui/kit/TovuButton.h>
#include <tovukit_io/ui/kit/TovuCaptionRow.h>
#include <tovukit_io/ui/kit/TovuEqualWidthLayout.h>
#include <tovukit_io/ui/kit/TovuHairline.h>
#include <tovukit_io/ui/kit/TovuLabels.h>
#include <tovukit_io/ui/kit/TovuScrollStrip.h>
#include <tovukit_io/ui/kit/TovuSymbolButton.h>
#include <tovukit_io/viewmodel/TovuPageMetrics.h>
#include <tovukit_io/viewmodel/TovuRatingQuestionViewModel.h>
#include <tovukit_io/viewmodel/TovuThemeEngine.h>

#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

using Parts = TovuQuestionParts;
using Model = TovuMultiRatingQuestionViewModel;
using Pieces = TovuRatingParts;

namespace {

using Metrics = TovuPageMetrics;
const int symbolHeight = qRound(Metrics::multiRatingSymbolHeight);
const int faceHeight = qRound(Metrics::multiRatingFaceHeight);
const int stripHeight = qRound(Metrics::multiRatingStripHeight);
const int labelledStripHeight = qRound(Metrics::multiRatingLabelledStripHeight);
const int columnSpacing = qRound(Metrics::multiRatingColumnSpacing);

} // namespace

TovuMultiRatingQuestionView::TovuMultiRatingQuestionView(TovuQuestion question, TovuRatingVariant variant,
                                                         bool isLastQuestion, QWidget *parent)
    : TovuMultiRatingQuestionView(new Model(std::move(question), variant, isLastQuestion), parent)
{ }

TovuMultiRatingQuestionView::TovuMultiRatingQuestionView(Model *model, QWidget *parent)
    : TovuQuestionView(model, parent)
    , m_model(model)
{
    QVBoxLayout *outer = Parts::pageStack(this, qRound(Metrics::multiRatingSpacing));
    m_titleLabel = Parts::titleLabel(m_model->title(), this);
    outer->addWidget(m_titleLabel);
    m_subtitleLabel = Parts::hintLabel(m_model->subtitle(), this);
    m_subtitleLabel->setVisible(!m_model->subtitle().isEmpty());
    outer->addWidget(m_subtitleLabel);

    m_rowsStack = Parts::stack(qRound(Metrics::multiRatingRowsSpacing));
    const QStringList rowIds = m_model->optionIds();
    const QStringList rowTexts = m_model->optionTexts();
    for (int row = 0; row < rowIds.size(); ++row)
        addRow(row, rowIds[row], rowTexts[row]);
    outer->addLayout(m_rowsStack);

    const Footer footer = addFooter(outer, Refusal::shakeMessage);
    m_validationLabel = footer.validationLabel;
    m_actionButton = footer.actionButton;
    connect(m_model, &Model::rowRated, this, [this](const QString &rowId, const QString &identifier) {
        restyleRow(rowId);
        bump(rowId, identifier);
    });
    finishBuilding();
}

TovuMultiRatingQuestionView::~TovuMultiRatingQuestionView() = default;

void TovuMultiRatingQuestionView::addRow(int row, const QString &rowId, const QString &text)
{
    QVBoxLayout *block = Parts::stack(qRound(Metrics::multiRatingRowSpacing));
    QLabel *label
        = TovuLabels::plain(text, Parts::font(Metrics::multiRatingRowLabelFontSize, QFont::Normal), QColor(), this);
    m_rowLabels.append(label);
    block->addWidget(label);
    block->addWidget(buttonStrip(row, rowId.toStdString()));
    auto *separator = new TovuHairline(this);
    separator->setThickness(qRound(Metrics::multiRatingSeparatorHeight));
    block->addWidget(separator);
    m_rowsStack->addLayout(block);
}

TovuScrollStrip *TovuMultiRatingQuestionView::buttonStrip(int row, const std::string &rowId)
{
    const bool labelled = m_model->showsColumnLabels();
    auto *strip = new TovuScrollStrip(this);
    strip->setFixedHeight(labelled ? labelledStripHeight : stripHeight);
    // The labels are painted by the row, not laid out: a grid of ten by ten would
    // otherwise take two hundred more widgets.
    TovuCaptionRow *content = Pieces::captionRow();
    QLayout *layout = nullptr;
    if (m_model->sharesWidth())
        layout = new TovuEqualWidthLayout(content);
    else
        layout = new QHBoxLayout(content);
    // Room for the labels below the buttons, which the row centres with them.
    layout->setContentsMargins(0, 0, 0, labelled ? content->captionHeight() : 0);
    layout->setSpacing(columnSpacing);

    const QStringList texts = m_model->columnTexts();
    for (int position = 1; position <= texts.size(); ++position) {
        TovuButton *button = makeButton(row, rowId, position, content);
        if (labelled)
            content->setCaption(button, texts[position - 1]);
        if (!m_model->sharesWidth())
            button->setFixedWidth(columnWidth(position, labelled ? content : nullptr)); // and the strip scrolls
        layout->addWidget(button);
    }
    if (auto *box = qobject_cast<QHBoxLayout *>(layout))
        box->addStretch();
    strip->setWidget(content);
    m_strips.append(strip);
    m_captionRows.append(content);
    return strip;
}

// Every row has the same columns: their widths are measured once, with the first row's label font.
int TovuMultiRatingQuestionView::columnWidth(int position, const TovuCaptionRow *captions)
{
    if (!captions)
        return naturalColumnWidth;
    if (m_columnWidths.isEmpty())
        m_columnWidths = m_model->naturalColumnWidths(captions->captionFont());
    return m_columnWidths.value(position - 1, naturalColumnWidth);
}

TovuButton *TovuMultiRatingQuestionView::makeButton(int row, const std::string &rowId, int position, QWidget *strip)
{
    const std::string &columnId = m_model->columns()[static_cast<std::size_t>(position - 1)].id;
    TovuButton *button = nullptr;
    if (m_model->variant() == TovuRatingVariant::emoji)
        button = Pieces::faceButton(m_model->buttonTitle(position), faceHeight, strip);
    else
        button = Pieces::symbolButton(Model::symbolPointSize, symbolHeight, strip);
    button->setTag(position);
    button->setCheckable(true);
    button->setObjectName(Model::identifier(rowId, columnId));
    button->setAccessibleName(m_model->accessibleName(row, position));
    connect(button, &TovuButton::clicked, this, [this, button] { colTapped(button); });
    m_rowButtons[rowId].append(button);
    return button;
}

const std::optional<TovuQuestion> &TovuMultiRatingQuestionView::question() const
{
    return m_model->question();
}

TovuRatingVariant TovuMultiRatingQuestionView::variant() const
{
    return m_model->variant();
}

bool TovuMultiRatingQuestionView::isLastQuestion() const
{
    return m_model->isLastQuestion();
}

std::map<std::string, std::string> TovuMultiRatingQuestionView::selectedCols() const
{
    return m_model->selectedCols();
}

void TovuMultiRatingQuestionView::colTapped(TovuButton *button)
{
    if (button)
        m_model->tap(button->objectName());
}

void TovuMultiRatingQuestionView::actionTapped()
{
    m_model->submit();
}

void TovuMultiRatingQuestionView::bump(const QString &rowId, const QString &identifier)
{
    const auto found = m_rowButtons.find(rowId.toStdString());
    if (found == m_rowButtons.end())
        return;
    for (TovuButton *button : std::as_const(found->second)) {
        if (button->objectName() == identifier)
            button->tapScale(TovuRatingQuestionViewModel::tapScale, TovuRatingQuestionViewModel::tapSeconds);
    }
}

void TovuMultiRatingQuestionView::restyleRow(const QString &rowId)
{
    const auto found = m_rowButtons.find(rowId.toStdString());
    if (found == m_rowButtons.end())
        return;
    const QColor active = m_model->activeColor();
    const int chosen = m_model->selectedPosition(rowId);
    for (TovuButton *button : std::as_const(found->second)) {
        const int position = button->tag();
        const bool filled = m_model->isFilled(rowId, position);
        button->setChecked(position == chosen); // what a screen reader calls chosen
        if (auto *symbol = qobject_cast<TovuSymbolButton *>(button))
            Pieces::styleSymbol(symbol, m_model->symbolName(rowId, position), filled, active);
        else
            Pieces::styleFace(button, filled, Model::emojiSize, Model::chosenEmojiSize);
    }
}

void TovuMultiRatingQuestionView::restyle()
{
    Parts::restyleTitle(m_titleLabel);
    Parts::restyleHint(m_subtitleLabel);
    Parts::restyleValidation(m_validationLabel);
    Parts::restyleAction(m_actionButton, accent());
    for (QLabel *label : std::as_const(m_rowLabels))
        TovuLabels::setColor(label, TovuThemeEngine::shared().textColor());
    Pieces::restyleColumnLabels(m_captionRows);
    for (const auto &[rowId, buttons] : m_rowButtons)
        restyleRow(QString::fromStdString(rowId));
}
