#include <tovukit_io/ui/TovuNPSQuestionView.h>

#include "TovuQuestionParts.h"
#include "TovuScaleParts.h"

#include <tovukit_io/ui/TovuFollowUpCard.h>
#include <tovukit_io/ui/kit/TovuButton.h>
#include <tovukit_io/ui/kit/TovuEqualWidthLayout.h>
#include <tovukit_io/ui/kit/TovuLabels.h>
#include <tovukit_io/ui/kit/TovuTextArea.h>

#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

using Parts = TovuQuestionParts;
using Kind = TovuNPSQuestionViewModel::FollowUpKind;

TovuNPSQuestionView::TovuNPSQuestionView(TovuQuestion question, bool isLastQuestion, QWidget *parent)
    : TovuNPSQuestionView(new TovuNPSQuestionViewModel(std::move(question), isLastQuestion), parent)
{ }

TovuNPSQuestionView::TovuNPSQuestionView(TovuNPSQuestionViewModel *model, QWidget *parent)
    : TovuQuestionView(model, parent)
    , m_model(model)
{
    m_model->onAdditionalAnswer = [this](const TovuAnswer &answer) {
        if (onAdditionalAnswer)
            onAdditionalAnswer(answer);
    };
    QVBoxLayout *outer = Parts::pageStack(this, qRound(TovuPageMetrics::npsSpacing));
    m_titleLabel = Parts::titleLabel(m_model->title(), this);
    outer->addWidget(m_titleLabel);
    m_subtitleLabel = TovuScaleParts::buildSubtitle(m_model->subtitle(), this);
    outer->addWidget(m_subtitleLabel);
    m_npsRow = TovuScaleParts::buildScale(this, TovuScaleParts::ScaleMetrics{}, m_npsButtons,
                                          [this](TovuButton *button) { npsTapped(button); });
    outer->addLayout(m_npsRow);
    m_labelsStack = TovuScaleParts::buildEndLabels(this, m_model->lowLabel(), m_model->highLabel(),
                                                   Parts::font(TovuPageMetrics::endLabelFontSize, QFont::Normal),
                                                   m_lowLabel, m_highLabel);
    outer->addLayout(m_labelsStack);
    buildFollowUpCard();
    outer->addWidget(m_followUpCard);
    m_actionButton = addFooter(outer, Refusal::never).actionButton;

    connect(m_model, &TovuNPSQuestionViewModel::followUpChanged, this, &TovuNPSQuestionView::showFollowUp);
    connect(m_model, &TovuNPSQuestionViewModel::selectedScoreChanged, this, &TovuNPSQuestionView::restyle);
    connect(m_model, &TovuNPSQuestionViewModel::selectedFollowUpOptionIdChanged, this, &TovuNPSQuestionView::restyle);
    finishBuilding();
}

TovuNPSQuestionView::~TovuNPSQuestionView() = default;

void TovuNPSQuestionView::buildFollowUpCard()
{
    m_followUpCard = new TovuFollowUpCard(this);
    TovuTextArea *text = m_followUpCard->textArea();
    connect(text, &QPlainTextEdit::textChanged, m_model,
            [this, text] { m_model->setFollowUpText(text->toPlainText()); });
    connect(m_model, &TovuNPSQuestionViewModel::followUpTextChanged, text, [this, text] {
        if (text->toPlainText() != m_model->followUpText())
            text->setPlainText(m_model->followUpText());
    });
}

void TovuNPSQuestionView::showFollowUp()
{
    switch (m_model->followUpKind()) {
    case Kind::none:
        break;
    case Kind::text:
        m_followUpCard->showText(m_model->followUpQuestion());
        break;
    case Kind::singleChoice:
        for (TovuButton *option : m_followUpCard->showChoices(m_model->followUpQuestion(), m_model->followUpOptions()))
            connect(option, &TovuButton::clicked, this, [this, option] { followUpOptionTapped(option); });
        break;
    }
    m_followUpCard->setVisible(m_model->isFollowUpShown());
    restyle();
}

QLabel *TovuNPSQuestionView::followUpTitle() const
{
    return m_followUpCard->titleLabel();
}

TovuTextArea *TovuNPSQuestionView::followUpText() const
{
    return m_followUpCard->textArea();
}

QVBoxLayout *TovuNPSQuestionView::followUpChoiceStack() const
{
    return m_followUpCard->choiceStack();
}

const QList<TovuButton *> &TovuNPSQuestionView::followUpOptionButtons() const
{
    return m_followUpCard->choiceButtons();
}

const std::optional<TovuQuestion> &TovuNPSQuestionView::question() const
{
    return m_model->question();
}

std::optional<int> TovuNPSQuestionView::selectedScore() const
{
    return m_model->selectedScore();
}

bool TovuNPSQuestionView::isLastQuestion() const
{
    return m_model->isLastQuestion();
}

std::optional<std::string> TovuNPSQuestionView::selectedFollowUpOptionId() const
{
    return m_model->selectedFollowUpOptionId();
}

void TovuNPSQuestionView::npsTapped(TovuButton *button)
{
    if (!button)
        return;
    m_model->selectScore(button->tag());
    if (m_model->selectedScore() == button->tag())
        button->tapScale(TovuNPSBands::tapScale, TovuNPSBands::tapSeconds);
}

void TovuNPSQuestionView::followUpOptionTapped(TovuButton *button)
{
    if (button)
        m_model->selectFollowUpOption(button->objectName());
}

void TovuNPSQuestionView::actionTapped()
{
    m_model->submit();
}

void TovuNPSQuestionView::restyle()
{
    const QColor primary = accent();
    Parts::restyleTitle(m_titleLabel);
    Parts::restyleHint(m_subtitleLabel);
    Parts::restyleAction(m_actionButton, primary);
    m_followUpCard->restyle(m_model->selectedFollowUpOptionIdText(), primary);
    TovuScaleParts::restyleScale(m_npsButtons, [this](int score) { return m_model->scoreLook(score); });
}
