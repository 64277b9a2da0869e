#include <tovukit_io/ui/TovuFollowUpCard.h>

#include "TovuQuestionParts.h"

#include <tovukit_io/ui/kit/TovuButton.h>
#include <tovukit_io/ui/kit/TovuLabels.h>
#include <tovukit_io/ui/kit/TovuTextArea.h>
#include <tovukit_io/viewmodel/TovuPageMetrics.h>
#include <tovukit_io/viewmodel/TovuPlatformColors.h>
#include <tovukit_io/viewmodel/TovuThemeEngine.h>

#include <QLabel>
#include <QVBoxLayout>

using Parts = TovuQuestionParts;
using Metrics = TovuPageMetrics;

TovuFollowUpCard::TovuFollowUpCard(QWidget *parent)
    : TovuBox(parent)
{
    setBackgroundColor(TovuPlatformColors::color(TovuPlatformColors::Role::gray6));
    setCornerRadius(Metrics::followUpCornerRadius);
    auto *stack = Parts::pageStack(this, qRound(Metrics::followUpSpacing));
    const int padding = qRound(Metrics::followUpPadding);
    stack->setContentsMargins(padding, padding, padding, padding);

    m_titleLabel
        = TovuLabels::plain(QString(), Parts::font(Metrics::followUpTitleFontSize, QFont::DemiBold), QColor(), this);
    stack->addWidget(m_titleLabel);
    m_textArea = new TovuTextArea(this);
    m_textArea->setFont(Parts::font(Metrics::followUpTextFontSize, QFont::Normal));
    stack->addWidget(m_textArea);

    m_choiceContainer = new QWidget(this);
    m_choiceStack = Parts::pageStack(m_choiceContainer, qRound(Metrics::followUpChoiceSpacing));
    m_choiceContainer->hide();
    stack->addWidget(m_choiceContainer);
    hide();
}

TovuFollowUpCard::~TovuFollowUpCard() = default;

void TovuFollowUpCard::showText(const QString &question)
{
    TovuLabels::setText(m_titleLabel, question);
    m_textArea->setAccessibleName(question);
    m_textArea->clear();
    m_textArea->show();
    clearChoices();
    m_choiceContainer->hide();
}

const QList<TovuButton *> &TovuFollowUpCard::showChoices(const QString &question,
                                                         const std::vector<TovuChoice> &options)
{
    TovuLabels::setText(m_titleLabel, question);
    m_textArea->hide();
    clearChoices();
    for (const TovuChoice &option : options) {
        auto *button = new TovuButton(QString::fromStdString(option.text), m_choiceContainer);
        button->setObjectName(QString::fromStdString(option.id));
        button->setFont(Parts::font(Metrics::followUpChoiceFontSize, QFont::Medium));
        button->setAccessory(TovuButton::Accessory::radio);
        button->setAccessorySize(Metrics::followUpRadioSize);
        button->setAccessoryInset(Metrics::followUpRadioLeading);
        button->setCheckable(true);
        button->setTitleAlignment(Qt::AlignLeading);
        button->setContentInsets(
            QMargins(qRound(Metrics::followUpChoiceInsetLeading), qRound(Metrics::followUpChoiceInsetVertical),
                     qRound(Metrics::followUpChoiceInsetTrailing), qRound(Metrics::followUpChoiceInsetVertical)));
        button->setCornerRadius(Metrics::followUpChoiceCornerRadius);
        button->setBorderWidth(Metrics::optionRowBorderWidth);
        button->setFixedHeight(qRound(Metrics::followUpChoiceHeight));
        m_choiceStack->addWidget(button);
        m_choiceButtons.append(button);
    }
    m_choiceContainer->show();
    return m_choiceButtons;
}

void TovuFollowUpCard::clearChoices()
{
    for (TovuButton *button : std::as_const(m_choiceButtons)) {
        m_choiceStack->removeWidget(button);
        // The button may be the one whose tap led here.
        button->hide();
        button->deleteLater();
    }
    m_choiceButtons.clear();
}

void TovuFollowUpCard::restyle(const QString &selectedId, const QColor &accent)
{
    setBackgroundColor(TovuPlatformColors::color(TovuPlatformColors::Role::gray6));
    TovuLabels::setColor(m_titleLabel, TovuThemeEngine::shared().textColor());
    for (TovuButton *button : std::as_const(m_choiceButtons))
        Parts::restyleOptionRow(button, !selectedId.isEmpty() && button->objectName() == selectedId, accent);
}
