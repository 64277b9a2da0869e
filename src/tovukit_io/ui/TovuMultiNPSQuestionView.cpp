#include <tovukit_io/ui/TovuMultiNPSQuestionView.h>

#include "TovuQuestionParts.h"
#include "TovuScaleParts.h"

#include <tovukit_io/ui/kit/TovuButton.h>
#include <tovukit_io/ui/kit/TovuEqualWidthLayout.h>
#include <tovukit_io/ui/kit/TovuHairline.h>
#include <tovukit_io/ui/kit/TovuLabels.h>

#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

using Parts = TovuQuestionParts;
using Metrics = TovuPageMetrics;

TovuMultiNPSQuestionView::TovuMultiNPSQuestionView(TovuQuestion question, bool isLastQuestion, QWidget *parent)
    : TovuMultiNPSQuestionView(new TovuMultiNPSQuestionViewModel(std::move(question), isLastQuestion), parent)
{ }

TovuMultiNPSQuestionView::TovuMultiNPSQuestionView(TovuMultiNPSQuestionViewModel *model, QWidget *parent)
    : TovuQuestionView(model, parent)
    , m_model(model)
{
    QVBoxLayout *outer = Parts::pageStack(this, qRound(Metrics::multiNpsSpacing));
    m_titleLabel = Parts::titleLabel(m_model->title(), this);
    outer->addWidget(m_titleLabel);
    m_subtitleLabel = TovuScaleParts::buildSubtitle(m_model->subtitle(), this);
    outer->addWidget(m_subtitleLabel);
    m_rowsStack = Parts::stack(qRound(Metrics::multiNpsRowsSpacing));
    const QStringList ids = m_model->optionIds();
    const QStringList texts = m_model->optionTexts();
    for (qsizetype row = 0; row < ids.size(); ++row)
        addRow(ids[row], texts[row]);
    outer->addLayout(m_rowsStack);
    const Footer footer = addFooter(outer, Refusal::shakeMessage);
    m_validationLabel = footer.validationLabel;
    m_actionButton = footer.actionButton;
    connect(m_model, &TovuMultiNPSQuestionViewModel::selectedScoresChanged, this, &TovuMultiNPSQuestionView::restyle);
    finishBuilding();
}

TovuMultiNPSQuestionView::~TovuMultiNPSQuestionView() = default;

void TovuMultiNPSQuestionView::addRow(const QString &rowId, const QString &text)
{
    QVBoxLayout *block = Parts::stack(qRound(Metrics::multiNpsRowSpacing));
    QLabel *label
        = TovuLabels::plain(text, Parts::font(Metrics::multiNpsRowLabelFontSize, QFont::DemiBold), QColor(), this);
    block->addWidget(label);
    m_rowLabels.append(label);

    QList<TovuButton *> buttons;
    const TovuScaleParts::ScaleMetrics metrics{.fontSize = Metrics::multiNpsScoreFontSize,
                                               .cornerRadius = Metrics::multiNpsScoreCornerRadius,
                                               .height = qRound(Metrics::multiNpsScoreHeight)};
    block->addLayout(
        TovuScaleParts::buildScale(this, metrics, buttons, [this](TovuButton *button) { scoreTapped(button); }));
    for (TovuButton *button : std::as_const(buttons)) {
        // The id, not the position, links a button to its row.
        button->setObjectName(rowId);
        button->setAccessibleDescription(text);
    }
    m_scoreButtons.append(buttons);

    QLabel *low = nullptr;
    QLabel *high = nullptr;
    block->addLayout(TovuScaleParts::buildEndLabels(this, m_model->lowLabel(), m_model->highLabel(),
                                                    Parts::font(Metrics::multiNpsEndLabelFontSize, QFont::DemiBold),
                                                    low, high));
    m_lowLabels.append(low);
    m_highLabels.append(high);

    auto *separator = new TovuHairline(this);
    separator->setThickness(Metrics::multiNpsSeparatorHeight);
    block->addWidget(separator);
    m_separators.append(separator);
    m_rowsStack->addLayout(block);
}

const std::optional<TovuQuestion> &TovuMultiNPSQuestionView::question() const
{
    return m_model->question();
}

bool TovuMultiNPSQuestionView::isLastQuestion() const
{
    return m_model->isLastQuestion();
}

const std::map<std::string, TovuMultiNPSQuestionViewModel::Rating> &TovuMultiNPSQuestionView::selectedScores() const
{
    return m_model->selectedScores();
}

void TovuMultiNPSQuestionView::scoreTapped(TovuButton *button)
{
    if (!button)
        return;
    const QString rowId = button->objectName();
    m_model->selectScore(rowId, button->tag());
    if (m_model->scoreOf(rowId) == button->tag())
        button->tapScale(TovuNPSBands::tapScale, TovuNPSBands::tapSeconds);
}

void TovuMultiNPSQuestionView::actionTapped()
{
    m_model->submit();
}

void TovuMultiNPSQuestionView::restyle()
{
    Parts::restyleTitle(m_titleLabel);
    Parts::restyleHint(m_subtitleLabel);
    Parts::restyleValidation(m_validationLabel);
    Parts::restyleAction(m_actionButton, accent());
    for (QLabel *label : std::as_const(m_rowLabels))
        Parts::restyleTitle(label);
    for (const QList<TovuButton *> &buttons : std::as_const(m_scoreButtons)) {
        const std::string rowId = buttons.constFirst()->objectName().toStdString();
        TovuScaleParts::restyleScale(buttons, [this, &rowId](int score) { return m_model->scoreLook(rowId, score); });
    }
}
