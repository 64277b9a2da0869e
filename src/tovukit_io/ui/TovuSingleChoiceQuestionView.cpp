#include <tovukit_io/ui/TovuSingleChoiceQuestionView.h>

#include "TovuQuestionParts.h"

#include <tovukit_io/ui/kit/TovuButton.h>
#include <tovukit_io/viewmodel/TovuPageMetrics.h>
#include <tovukit_io/viewmodel/TovuSingleChoiceQuestionViewModel.h>

#include <QLabel>
#include <QVBoxLayout>

using Parts = TovuQuestionParts;

TovuSingleChoiceQuestionView::TovuSingleChoiceQuestionView(TovuQuestion question, bool isLastQuestion, QWidget *parent)
    : TovuSingleChoiceQuestionView(new TovuSingleChoiceQuestionViewModel(std::move(question), isLastQuestion), parent)
{ }

TovuSingleChoiceQuestionView::TovuSingleChoiceQuestionView(TovuSingleChoiceQuestionViewModel *model, QWidget *parent)
    : TovuQuestionView(model, parent)
    , m_model(model)
{
    QVBoxLayout *outer = Parts::pageStack(this, qRound(TovuPageMetrics::singleChoiceSpacing));
    m_titleLabel = Parts::titleLabel(m_model->title(), this);
    outer->addWidget(m_titleLabel);

    m_optionsStack = Parts::optionRows(m_model->optionTexts(), TovuButton::Accessory::radio, this, m_optionRows,
                                       [this](TovuButton *row) { optionTapped(row); });
    outer->addLayout(m_optionsStack);
    const Footer footer = addFooter(outer);
    m_validationLabel = footer.validationLabel;
    m_nextButton = footer.actionButton;
    connect(m_model, &TovuSingleChoiceQuestionViewModel::selectedIndexChanged, this,
            &TovuSingleChoiceQuestionView::restyle);
    finishBuilding();
}

TovuSingleChoiceQuestionView::~TovuSingleChoiceQuestionView() = default;

const std::optional<TovuQuestion> &TovuSingleChoiceQuestionView::question() const
{
    return m_model->question();
}

bool TovuSingleChoiceQuestionView::isLastQuestion() const
{
    return m_model->isLastQuestion();
}

std::optional<TovuChoice> TovuSingleChoiceQuestionView::selectedOption() const
{
    return m_model->selectedOption();
}

void TovuSingleChoiceQuestionView::optionTapped(TovuButton *row)
{
    m_model->selectOption(row->tag());
    if (m_model->selectedIndex() == row->tag())
        row->tapScale(TovuPageMetrics::pressScale, TovuPageMetrics::pressSeconds);
}

void TovuSingleChoiceQuestionView::nextTapped()
{
    m_model->submit();
}

void TovuSingleChoiceQuestionView::restyle()
{
    const QColor primary = accent();
    Parts::restyleTitle(m_titleLabel);
    Parts::restyleValidation(m_validationLabel);
    Parts::restyleAction(m_nextButton, primary);
    for (TovuButton *row : std::as_const(m_optionRows))
        Parts::restyleOptionRow(row, row->tag() == m_model->selectedIndex(), primary);
}
