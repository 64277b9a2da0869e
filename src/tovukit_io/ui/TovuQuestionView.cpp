#include <tovukit_io/ui/TovuQuestionView.h>

#include "TovuQuestionParts.h"

#include <tovukit_io/ui/kit/TovuButton.h>
#include <tovukit_io/ui/kit/TovuShake.h>
#include <tovukit_io/viewmodel/TovuQuestionViewModel.h>
#include <tovukit_io/viewmodel/TovuThemeEngine.h>

#include <QEvent>
#include <QLabel>
#include <QVBoxLayout>

TovuQuestionView::TovuQuestionView(TovuQuestionViewModel *model, QWidget *parent)
    : QWidget(parent)
    , m_baseModel(model)
{
    m_baseModel->setParent(this);
    m_baseModel->onAnswer = [this](const TovuAnswer &answer) {
        if (onAnswer)
            onAnswer(answer);
    };
}

TovuQuestionView::~TovuQuestionView() = default;

TovuQuestionView::Footer TovuQuestionView::addFooter(QVBoxLayout *stack, Refusal refusal)
{
    TovuQuestionViewModel *model = m_baseModel;
    Footer footer;
    if (refusal != Refusal::never) {
        QLabel *validation = TovuQuestionParts::validationLabel(model->validationMessage(), this);
        stack->addWidget(validation);
        connect(model, &TovuQuestionViewModel::validationVisibleChanged, validation,
                [validation, model] { validation->setVisible(model->isValidationVisible()); });
        QWidget *target = refusal == Refusal::shakeMessage ? static_cast<QWidget *>(validation) : this;
        connect(model, &TovuQuestionViewModel::shakeRequested, target, [target] { TovuShake::shake(target); });
        footer.validationLabel = validation;
    }

    TovuButton *action = TovuQuestionParts::actionButton(model->actionTitle(), this);
    action->setVisible(model->isActionVisible());
    stack->addWidget(action);
    connect(model, &TovuQuestionViewModel::actionTitleChanged, action,
            [action, model] { action->setText(model->actionTitle()); });
    connect(model, &TovuQuestionViewModel::actionVisibleChanged, action,
            [action, model] { action->setVisible(model->isActionVisible()); });
    connect(action, &TovuButton::clicked, model, &TovuQuestionViewModel::submit);
    footer.actionButton = action;
    return footer;
}

QColor TovuQuestionView::accent() const
{
    return TovuThemeEngine::shared().primaryColor(this);
}

void TovuQuestionView::finishBuilding()
{
    m_built = true;
    restyle();
}

void TovuQuestionView::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    // A page moved into the sheet inherits its host window's palette, and with it the accent.
    if (m_built && (event->type() == QEvent::PaletteChange || event->type() == QEvent::ApplicationPaletteChange))
        restyle();
}
