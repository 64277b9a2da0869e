#include <tovukit_io/ui/TovuFollowUpCard.h>

#include "TovuQuestionParts.h"

#include <tovukit_io/ui/kit/TovuButton.h>
#include <tovukit_io/ui/kit/TovuLabels.h>
#include <tovukit_io/ui/kit/TovuTextArea.h>
#include <tovukit_io/viewmodel/TovuPlatformColors.h>
#include <tovukit_io/viewmodel/TovuThemeEngine.h>

#include <QLabel>
#include <QVBoxLayout>

using Parts = TovuQuestionParts;

TovuFollowUpCard::TovuFollowUpCard(QWidget *parent)
    : TovuBox(parent)
{
    setBackgroundColor(TovuPlatformColors::color(TovuPlatformColors::Role::gray6));
    setCornerRadius(12);
    auto *stack = Parts::pageStack(this, 10);
    stack->setContentsMargins(14, 14, 14, 14);

    m_titleLabel = TovuLabels::plain(QString(), Parts::font(15, QFont::DemiBold), QColor(), this);
    stack->addWidget(m_titleLabel);
    m_textArea = new TovuTextArea(this);
    m_textArea->setFont(Parts::font(15, QFont::Normal));
    stack->addWidget(m_textArea);

    m_choiceContainer = new QWidget(this);
    m_choiceStack = Parts::pageStack(m_choiceContainer, 8);
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
        button->setFont(Parts::font(14, QFont::Medium));
        button->setAccessory(TovuButton::Accessory::radio);
        button->setAccessorySize(18);
        button->setAccessoryInset(12);
        button->setCheckable(true);
        button->setTitleAlignment(Qt::AlignLeading);
        button->setContentInsets(QMargins(40, 10, 12, 10));
        button->setCornerRadius(10);
        button->setBorderWidth(1.5);
        button->setFixedHeight(44);
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
