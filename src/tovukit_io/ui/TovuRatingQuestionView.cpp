#include <tovukit_io/ui/TovuRatingQuestionView.h>

#include "TovuQuestionParts.h"
#include "TovuRatingParts.h"

#include <tovukit_io/graphics/TovuEmoji.h>
#include <tovukit_io/ui/TovuFollowUpCard.h>
#include <tovukit_io/ui/kit/TovuButton.h>
#include <tovukit_io/ui/kit/TovuEqualWidthLayout.h>
#include <tovukit_io/ui/kit/TovuFitLabel.h>
#include <tovukit_io/ui/kit/TovuLabels.h>
#include <tovukit_io/ui/kit/TovuSymbolButton.h>
#include <tovukit_io/viewmodel/TovuPageMetrics.h>
#include <tovukit_io/viewmodel/TovuPlatformColors.h>

#include <QLabel>
#include <QVBoxLayout>

using Parts = TovuQuestionParts;
using Model = TovuRatingQuestionViewModel;

namespace {

using Metrics = TovuPageMetrics;
const int symbolHeight = qRound(Metrics::symbolButtonHeight);
const int faceHeight = qRound(Metrics::faceButtonHeight);
const int tileHeight = qRound(Metrics::tileHeight);

QColor platform(TovuPlatformColors::Role role)
{
    return TovuPlatformColors::color(role);
}

bool isSymbolVariant(TovuRatingVariant variant)
{
    return variant != TovuRatingVariant::emoji && variant != TovuRatingVariant::numeric;
}

TovuButton *tileButton(int rating, QWidget *parent)
{
    auto *tile = new TovuButton(QString::number(rating), parent);
    tile->setFont(Parts::font(Metrics::tileFontSize, QFont::Bold));
    tile->setCornerRadius(Metrics::tileCornerRadius);
    tile->setContentInsets(QMargins()); // ten numbers share a phone's width
    tile->setFixedHeight(tileHeight);
    return tile;
}

} // namespace

TovuRatingQuestionView::TovuRatingQuestionView(TovuQuestion question, TovuRatingVariant variant, int maxRating,
                                               bool isLastQuestion, QWidget *parent)
    : TovuRatingQuestionView(new Model(std::move(question), variant, maxRating, isLastQuestion), parent)
{ }

TovuRatingQuestionView::TovuRatingQuestionView(Model *model, QWidget *parent)
    : TovuQuestionView(model, parent)
    , m_model(model)
{
    QVBoxLayout *outer = Parts::pageStack(this, qRound(Metrics::ratingSpacing));
    m_titleLabel = Parts::titleLabel(m_model->title(), this);
    outer->addWidget(m_titleLabel);

    m_ratingRow = new TovuEqualWidthLayout;
    m_ratingRow->setSpacing(qRound(Metrics::ratingButtonSpacing));
    for (int rating = 1; rating <= m_model->buttonCount(); ++rating) {
        TovuButton *button = makeButton(rating);
        if (const std::optional<QString> label = m_model->columnLabel(rating))
            m_ratingRow->addWidget(TovuRatingParts::labelledColumn(button, *label, this, m_columnLabels));
        else
            m_ratingRow->addWidget(button);
        m_ratingButtons.append(button);
    }
    outer->addLayout(m_ratingRow);

    m_followUpCard = new TovuFollowUpCard(this);
    outer->addWidget(m_followUpCard);
    // The page never refuses: its validation label stays hidden.
    m_actionButton = addFooter(outer, Refusal::never).actionButton;

    connect(m_model, &Model::selectedRatingChanged, this, &TovuRatingQuestionView::restyle);
    connect(m_model, &Model::followUpChanged, this, &TovuRatingQuestionView::showFollowUp);
    finishBuilding();
}

TovuRatingQuestionView::~TovuRatingQuestionView() = default;

TovuButton *TovuRatingQuestionView::makeButton(int rating)
{
    TovuButton *button = nullptr;
    switch (m_model->variant()) {
    case TovuRatingVariant::emoji:
        button = TovuRatingParts::faceButton(m_model->buttonTitle(rating), faceHeight, this);
        break;
    case TovuRatingVariant::numeric:
        button = tileButton(rating, this);
        break;
    default:
        button = TovuRatingParts::symbolButton(Model::symbolPointSize, symbolHeight, this);
        break;
    }
    button->setTag(rating);
    button->setAccessibleName(m_model->accessibleName(rating));
    button->setCheckable(true);
    connect(button, &TovuButton::clicked, this, [this, button] { ratingTapped(button); });
    return button;
}

QLabel *TovuRatingQuestionView::followUpTitle() const
{
    return m_followUpCard->titleLabel();
}

TovuTextArea *TovuRatingQuestionView::followUpText() const
{
    return m_followUpCard->textArea();
}

const std::optional<TovuQuestion> &TovuRatingQuestionView::question() const
{
    return m_model->question();
}

TovuRatingVariant TovuRatingQuestionView::variant() const
{
    return m_model->variant();
}

int TovuRatingQuestionView::maxRating() const
{
    return m_model->maxRating();
}

std::optional<int> TovuRatingQuestionView::selectedRating() const
{
    return m_model->selectedRating();
}

bool TovuRatingQuestionView::isLastQuestion() const
{
    return m_model->isLastQuestion();
}

void TovuRatingQuestionView::ratingTapped(TovuButton *button)
{
    if (!button)
        return;
    m_model->rate(button->tag());
    if (m_model->rating() == button->tag())
        button->tapScale(Model::tapScale, Model::tapSeconds);
}

void TovuRatingQuestionView::actionTapped()
{
    m_model->submit();
}

void TovuRatingQuestionView::showFollowUp()
{
    if (!m_model->isFollowUpVisible()) {
        m_followUpCard->hide();
        return;
    }
    // Another rating with the same follow-up keeps what was typed.
    if (m_followUpCard->isHidden() || followUpTitle()->text() != m_model->followUpText())
        m_followUpCard->showText(m_model->followUpText());
    m_followUpCard->show();
}

void TovuRatingQuestionView::restyle()
{
    const QColor primary = accent();
    const QColor active = m_model->activeColor();
    Parts::restyleTitle(m_titleLabel);
    Parts::restyleAction(m_actionButton, primary);
    m_followUpCard->restyle(QString(), primary);
    TovuRatingParts::restyleColumnLabels(m_columnLabels);
    for (TovuButton *button : std::as_const(m_ratingButtons))
        styleButton(button, primary, active);
}

void TovuRatingQuestionView::styleButton(TovuButton *button, const QColor &accent, const QColor &active)
{
    const int rating = button->tag();
    const bool selected = m_model->isSelected(rating);
    button->setChecked(rating == m_model->rating()); // what a screen reader calls chosen
    if (isSymbolVariant(m_model->variant())) {
        TovuRatingParts::styleSymbol(static_cast<TovuSymbolButton *>(button), m_model->symbolName(rating), selected,
                                     active);
    } else if (m_model->variant() == TovuRatingVariant::emoji) {
        TovuRatingParts::styleFace(button, selected, Model::emojiSize, Model::chosenEmojiSize);
    } else {
        button->setBackgroundColor(selected ? accent : platform(TovuPlatformColors::Role::gray6));
        button->setTitleColor(selected ? QColor(Qt::white) : platform(TovuPlatformColors::Role::label));
    }
}
