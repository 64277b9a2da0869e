#include <tovukit_io/ui/TovuQuestionView.h>

#include <tovukit_io/ui/kit/TovuButton.h>
#include <tovukit_io/ui/kit/TovuLabels.h>
#include <tovukit_io/ui/kit/TovuShake.h>
#include <tovukit_io/viewmodel/TovuQuestionViewModel.h>
#include <tovukit_io/viewmodel/TovuThemeEngine.h>

#include <QEvent>
#include <QLabel>

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

void TovuQuestionView::bindModel(QLabel *validationLabel, TovuButton *actionButton, QWidget *shakeTarget)
{
    TovuQuestionViewModel *model = m_baseModel;
    if (validationLabel) {
        validationLabel->setVisible(model->isValidationVisible());
        connect(model, &TovuQuestionViewModel::validationVisibleChanged, validationLabel,
                [validationLabel, model] { validationLabel->setVisible(model->isValidationVisible()); });
    }
    if (actionButton) {
        actionButton->setText(model->actionTitle());
        actionButton->setVisible(model->isActionVisible());
        connect(model, &TovuQuestionViewModel::actionTitleChanged, actionButton,
                [actionButton, model] { actionButton->setText(model->actionTitle()); });
        connect(model, &TovuQuestionViewModel::actionVisibleChanged, actionButton,
                [actionButton, model] { actionButton->setVisible(model->isActionVisible()); });
        connect(actionButton, &TovuButton::clicked, model, &TovuQuestionViewModel::submit);
    }
    QWidget *target = shakeTarget ? shakeTarget : this;
    connect(model, &TovuQuestionViewModel::shakeRequested, target, [target] { TovuShake::shake(target); });
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
