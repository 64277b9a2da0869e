#include <tovukit_io/ui/TovuMultipleChoiceQuestionView.h>

#include "TovuQuestionParts.h"

#include <tovukit_io/ui/kit/TovuButton.h>
#include <tovukit_io/viewmodel/TovuMultipleChoiceQuestionViewModel.h>
#include <tovukit_io/viewmodel/TovuPageMetrics.h>

#include <QLabel>
#include <QVBoxLayout>

using Parts = TovuQuestionParts;

TovuMultipleChoiceQuestionView::TovuMultipleChoiceQuestionView(TovuQuestion question, bool isLastQuestion,
                                                               QWidget *parent)
    : TovuMultipleChoiceQuestionView(new TovuMultipleChoiceQuestionViewModel(std::move(question), isLastQuestion),
                                     parent)
{ }

TovuMultipleChoiceQuestionView::TovuMultipleChoiceQuestionView(TovuMultipleChoiceQuestionViewModel *model,
                                                               QWidget *parent)
    : TovuQuestionView(model, parent)
    , m_model(model)
{
    QVBoxLayout *outer = Parts::pageStack(this, qRound(TovuPageMetrics::multipleChoiceSpacing));
    m_titleLabel = Parts::titleLabel(m_model->title(), this);
    outer->addWidget(m_titleLabel);
    m_hintLabel = Parts::hintLabel(m_model->hint(), this);
    outer->addWidget(m_hintLabel);

    m_optionsStack = Parts::optionRows(m_model->optionTexts(), TovuButton::Accessory::checkbox, this, m_optionButtons,
                                       [this](TovuButton *row) { optionTapped(row); });
    // The id, not the position, links a row to its option.
    const QStringList ids = m_model->optionIds();
    for (TovuButton *row : std::as_const(m_optionButtons))
        row->setObjectName(ids[row->tag()]);
    outer->addLayout(m_optionsStack);
    const Footer footer = addFooter(outer);
    m_validationLabel = footer.validationLabel;
    m_nextButton = footer.actionButton;
    connect(m_model, &TovuMultipleChoiceQuestionViewModel::selectedIdsChanged, this,
            &TovuMultipleChoiceQuestionView::restyle);
    finishBuilding();
}

TovuMultipleChoiceQuestionView::~TovuMultipleChoiceQuestionView() = default;

const std::optional<TovuQuestion> &TovuMultipleChoiceQuestionView::question() const
{
    return m_model->question();
}

bool TovuMultipleChoiceQuestionView::isLastQuestion() const
{
    return m_model->isLastQuestion();
}

std::set<std::string> TovuMultipleChoiceQuestionView::selectedIds() const
{
    std::set<std::string> ids;
    for (const QString &id : m_model->selectedIds())
        ids.insert(id.toStdString());
    return ids;
}

void TovuMultipleChoiceQuestionView::nextTapped()
{
    m_model->submit();
}

void TovuMultipleChoiceQuestionView::optionTapped(TovuButton *row)
{
    m_model->toggleOption(row->objectName());
    // Only a tick bounces; an untick just lets go.
    if (m_model->isSelected(row->objectName()))
        row->tapScale(TovuPageMetrics::pressScale, TovuPageMetrics::pressSeconds);
}

void TovuMultipleChoiceQuestionView::restyle()
{
    const QColor primary = accent();
    Parts::restyleTitle(m_titleLabel);
    Parts::restyleHint(m_hintLabel);
    Parts::restyleValidation(m_validationLabel);
    Parts::restyleAction(m_nextButton, primary);
    for (TovuButton *row : std::as_const(m_optionButtons))
        Parts::restyleOptionRow(row, m_model->isSelected(row->objectName()), primary);
}
