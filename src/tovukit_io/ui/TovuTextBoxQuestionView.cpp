#include <tovukit_io/ui/TovuTextBoxQuestionView.h>

#include "TovuQuestionParts.h"

#include <tovukit_io/ui/kit/TovuButton.h>
#include <tovukit_io/ui/kit/TovuLabels.h>
#include <tovukit_io/ui/kit/TovuTextField.h>
#include <tovukit_io/viewmodel/TovuPageMetrics.h>
#include <tovukit_io/viewmodel/TovuTextBoxQuestionViewModel.h>

#include <QLabel>
#include <QVBoxLayout>

using Parts = TovuQuestionParts;
using Metrics = TovuPageMetrics;

TovuTextBoxQuestionView::TovuTextBoxQuestionView(TovuQuestion question, QWidget *parent)
    : TovuTextBoxQuestionView(new TovuTextBoxQuestionViewModel(std::move(question)), parent)
{ }

TovuTextBoxQuestionView::TovuTextBoxQuestionView(TovuQuestion question, bool, QWidget *parent)
    : TovuTextBoxQuestionView(std::move(question), parent)
{ }

TovuTextBoxQuestionView::TovuTextBoxQuestionView(TovuTextBoxQuestionViewModel *model, QWidget *parent)
    : TovuQuestionView(model, parent)
    , m_model(model)
{
    QVBoxLayout *outer = Parts::pageStack(this, qRound(Metrics::textBoxSpacing));
    m_titleLabel = Parts::titleLabel(m_model->title(), this);
    outer->addWidget(m_titleLabel);

    m_inputsStack = Parts::stack(qRound(Metrics::inputsSpacing));
    for (int index = 0; index < m_model->fieldCount(); ++index) {
        TovuTextField *field = addField(index);
        if (!m_model->isMultiple()) {
            m_inputsStack->addWidget(field);
            continue;
        }
        QVBoxLayout *group = Parts::stack(qRound(Metrics::fieldGroupSpacing));
        QLabel *label = TovuLabels::plain(m_model->fieldLabels().at(index),
                                          Parts::font(Metrics::fieldLabelFontSize, QFont::DemiBold), QColor(), this);
        group->addWidget(label);
        group->addWidget(field);
        m_inputsStack->addLayout(group);
        m_fieldLabels.append(label);
    }
    outer->addLayout(m_inputsStack);

    const Footer footer = addFooter(outer);
    m_validationLabel = footer.validationLabel;
    m_submitButton = footer.actionButton;
    connect(m_model, &TovuTextBoxQuestionViewModel::invalidFieldIndexChanged, this, &TovuTextBoxQuestionView::restyle);
    finishBuilding();
}

TovuTextBoxQuestionView::~TovuTextBoxQuestionView() = default;

TovuTextField *TovuTextBoxQuestionView::addField(int index)
{
    auto *field = new TovuTextField(this);
    field->setFont(Parts::font(Metrics::fieldFontSize, QFont::Normal));
    field->setPlaceholderText(m_model->fieldPlaceholders().at(index));
    field->setAccessibleName(m_model->isMultiple() ? m_model->fieldLabels().at(index) : m_model->title());
    if (m_model->isEmailField(index))
        field->setInputMethodHints(Qt::ImhEmailCharactersOnly | Qt::ImhNoAutoUppercase);
    connect(field, &QLineEdit::textChanged, m_model,
            [this, index](const QString &text) { m_model->setFieldText(index, text); });
    connect(field, &TovuTextField::focused, this, [this, field] { fieldFocused(field); });
    m_textFields.append(field);
    return field;
}

void TovuTextBoxQuestionView::submitTapped()
{
    m_model->submit();
}

void TovuTextBoxQuestionView::fieldFocused(TovuTextField *field)
{
    m_model->fieldFocused(static_cast<int>(m_textFields.indexOf(field)));
}

const std::optional<TovuQuestion> &TovuTextBoxQuestionView::question() const
{
    return m_model->question();
}

void TovuTextBoxQuestionView::restyle()
{
    const QColor primary = accent();
    Parts::restyleTitle(m_titleLabel);
    Parts::restyleValidation(m_validationLabel);
    Parts::restyleAction(m_submitButton, primary);
    for (QLabel *label : std::as_const(m_fieldLabels))
        TovuLabels::setColor(label, primary);
    for (qsizetype index = 0; index < m_textFields.size(); ++index) {
        m_textFields[index]->setFocusBorderColor(primary);
        m_textFields[index]->setHasError(index == m_model->invalidFieldIndex());
    }
}
