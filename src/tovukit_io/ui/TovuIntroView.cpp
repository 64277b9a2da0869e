#include <tovukit_io/ui/TovuIntroView.h>

#include "TovuQuestionParts.h"

#include <tovukit_io/ui/kit/TovuButton.h>
#include <tovukit_io/ui/kit/TovuLabels.h>
#include <tovukit_io/viewmodel/TovuIntroViewModel.h>
#include <tovukit_io/viewmodel/TovuPageMetrics.h>
#include <tovukit_io/viewmodel/TovuThemeEngine.h>

#include <QEvent>
#include <QLabel>
#include <QVBoxLayout>

using Parts = TovuQuestionParts;

TovuIntroView::TovuIntroView(TovuSurveyPage page, QWidget *parent)
    : QWidget(parent)
    , m_model(new TovuIntroViewModel(std::move(page), this))
{
    m_model->onStart = [this] {
        if (onStart)
            onStart();
    };
    QVBoxLayout *layout = Parts::pageStack(this, qRound(TovuPageMetrics::introSpacing));
    m_contentLabel = TovuLabels::plain(m_model->content(), Parts::font(TovuPageMetrics::introFontSize, QFont::Normal),
                                       QColor(), this);
    // With no text there is only the button.
    m_contentLabel->setVisible(m_model->hasContent());
    layout->addWidget(m_contentLabel);

    m_startButton = Parts::actionButton(m_model->buttonTitle(), this);
    connect(m_startButton, &TovuButton::clicked, m_model, &TovuIntroViewModel::start);
    layout->addWidget(m_startButton);
    restyle();
}

TovuIntroView::~TovuIntroView() = default;

const TovuSurveyPage &TovuIntroView::page() const
{
    return m_model->page();
}

// Also when the page moves into a sheet: it then inherits the host window's palette.
void TovuIntroView::restyle()
{
    const TovuThemeEngine &theme = TovuThemeEngine::shared();
    TovuLabels::setColor(m_contentLabel, theme.textColor());
    Parts::restyleAction(m_startButton, theme.primaryColor(this));
}

void TovuIntroView::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange || event->type() == QEvent::ApplicationPaletteChange)
        restyle();
}
