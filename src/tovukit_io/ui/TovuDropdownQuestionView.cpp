#include <tovukit_io/ui/TovuDropdownQuestionView.h>

#include "TovuQuestionParts.h"

#include <tovukit_io/ui/kit/TovuBox.h>
#include <tovukit_io/ui/kit/TovuButton.h>
#include <tovukit_io/ui/kit/TovuChevron.h>
#include <tovukit_io/ui/kit/TovuHairline.h>
#include <tovukit_io/viewmodel/TovuDropdownQuestionViewModel.h>
#include <tovukit_io/viewmodel/TovuPageMetrics.h>
#include <tovukit_io/viewmodel/TovuPlatformColors.h>

#include <QLabel>
#include <QVBoxLayout>

using Parts = TovuQuestionParts;
using Metrics = TovuPageMetrics;

TovuDropdownQuestionView::TovuDropdownQuestionView(TovuQuestion question, QWidget *parent)
    : TovuDropdownQuestionView(new TovuDropdownQuestionViewModel(std::move(question)), parent)
{ }

TovuDropdownQuestionView::TovuDropdownQuestionView(TovuQuestion question, bool, QWidget *parent)
    : TovuDropdownQuestionView(std::move(question), parent)
{ }

TovuDropdownQuestionView::TovuDropdownQuestionView(TovuDropdownQuestionViewModel *model, QWidget *parent)
    : TovuQuestionView(model, parent)
    , m_model(model)
{
    QVBoxLayout *outer = Parts::pageStack(this, qRound(Metrics::dropdownSpacing));
    m_titleLabel = Parts::titleLabel(m_model->title(), this);
    outer->addWidget(m_titleLabel);
    buildSelector();
    outer->addWidget(m_dropdownButton);
    buildList();
    outer->addWidget(m_optionsContainer);
    const Footer footer = addFooter(outer);
    m_validationLabel = footer.validationLabel;
    m_nextButton = footer.actionButton;
    connect(m_model, &TovuDropdownQuestionViewModel::expandedChanged, this, &TovuDropdownQuestionView::showExpansion);
    connect(m_model, &TovuDropdownQuestionViewModel::selectedIndexChanged, this, &TovuDropdownQuestionView::restyle);
    finishBuilding();
}

TovuDropdownQuestionView::~TovuDropdownQuestionView() = default;

void TovuDropdownQuestionView::buildSelector()
{
    m_dropdownButton = new TovuButton(m_model->selectorTitle(), this);
    m_dropdownButton->setFont(Parts::font(Metrics::selectorFontSize, QFont::Normal));
    m_dropdownButton->setTitleAlignment(Qt::AlignLeading);
    m_dropdownButton->setContentInsets(
        Parts::insets(Metrics::selectorInsetLeading, Metrics::selectorInsetVertical, Metrics::selectorInsetTrailing));
    m_dropdownButton->setCornerRadius(Metrics::selectorCornerRadius);
    m_dropdownButton->setBorderWidth(Metrics::selectorBorderWidth);
    m_dropdownButton->setFixedHeight(qRound(Metrics::selectorHeight));
    connect(m_dropdownButton, &TovuButton::clicked, this, &TovuDropdownQuestionView::toggleDropdown);

    m_chevron = new TovuChevron(m_dropdownButton);
    m_chevron->setTag(99);
}

void TovuDropdownQuestionView::buildList()
{
    m_optionsContainer = new TovuBox(this);
    m_optionsContainer->setCornerRadius(Metrics::listCornerRadius);
    m_optionsContainer->setBorderWidth(Metrics::listBorderWidth);
    // A soft shadow under the open list; the panel does not clip, so the shadow shows.
    m_optionsContainer->setHasShadow(true);
    m_optionsContainer->setShadowColor(QColor::fromRgbF(0, 0, 0, static_cast<float>(Metrics::listShadowOpacity)));
    m_optionsContainer->setShadowOffset(QPointF(0, Metrics::listShadowOffsetY));
    m_optionsContainer->setShadowBlurRadius(Metrics::listShadowRadius);
    m_optionsContainer->hide();

    m_optionsStack = Parts::pageStack(m_optionsContainer, 0);
    // Inside the border, so separators and a tinted choice never paint over it.
    const int inset = qRound(Metrics::listInset);
    m_optionsStack->setContentsMargins(inset, inset, inset, inset);
    const QStringList texts = m_model->optionTexts();
    for (int index = 0; index < texts.size(); ++index) {
        if (index > 0)
            m_optionsStack->addWidget(separator());
        auto *button = new TovuButton(texts[index], m_optionsContainer);
        button->setFont(Parts::font(Metrics::listRowFontSize, QFont::Normal));
        button->setTitleAlignment(Qt::AlignLeading);
        button->setContentInsets(
            Parts::insets(Metrics::listRowInset, Metrics::listRowInsetVertical, Metrics::listRowInset));
        button->setFixedHeight(qRound(Metrics::listRowHeight));
        button->setTag(index);
        connect(button, &TovuButton::clicked, this, [this, button] { optionTapped(button); });
        m_optionsStack->addWidget(button);
        m_optionButtons.append(button);
        m_optionMap.emplace(button, m_model->question()->options->at(static_cast<std::size_t>(index)));
    }
}

TovuHairline *TovuDropdownQuestionView::separator()
{
    auto *line = new TovuHairline(m_optionsContainer);
    line->setThickness(Metrics::separatorHeight);
    return line;
}

const std::optional<TovuQuestion> &TovuDropdownQuestionView::question() const
{
    return m_model->question();
}

std::optional<TovuChoice> TovuDropdownQuestionView::selectedOption() const
{
    return m_model->selectedOption();
}

bool TovuDropdownQuestionView::isExpanded() const
{
    return m_model->isExpanded();
}

void TovuDropdownQuestionView::toggleDropdown()
{
    m_model->toggleExpanded();
}

void TovuDropdownQuestionView::nextTapped()
{
    m_model->submit();
}

void TovuDropdownQuestionView::optionTapped(TovuButton *button)
{
    if (m_optionMap.contains(button))
        m_model->chooseOption(button->tag());
}

void TovuDropdownQuestionView::showExpansion()
{
    m_optionsContainer->setVisible(m_model->isExpanded());
    m_chevron->setExpanded(m_model->isExpanded());
    restyle();
}

void TovuDropdownQuestionView::restyle()
{
    const QColor primary = accent();
    Parts::restyleTitle(m_titleLabel);
    Parts::restyleValidation(m_validationLabel);
    Parts::restyleAction(m_nextButton, primary);

    // The selector stays highlighted while open and once something is chosen.
    m_dropdownButton->setText(m_model->selectorTitle());
    m_dropdownButton->setTitleColor(
        m_model->hasSelection() ? QColor() : TovuPlatformColors::color(TovuPlatformColors::Role::secondaryLabel));
    m_dropdownButton->setBorderColor(m_model->isExpanded() || m_model->hasSelection() ? primary : QColor());

    for (TovuButton *button : std::as_const(m_optionButtons)) {
        const bool chosen = button->tag() == m_model->selectedIndex();
        button->setBackgroundColor(chosen ? Parts::chosenFill(primary) : QColor(Qt::transparent));
        button->setTitleColor(chosen ? primary : QColor());
    }
}
