#include <tovukit_io/ui/TovuIntroView.h>

#include <tovukit_io/ui/kit/TovuButton.h>
#include <tovukit_io/ui/kit/TovuLabels.h>
#include <tovukit_io/viewmodel/TovuThemeEngine.h>

#include <QEvent>
#include <QLabel>
#include <QVBoxLayout>

TovuIntroView::TovuIntroView(TovuSurveyPage page, QWidget *parent)
    : QWidget(parent)
    , m_page(std::move(page))
{
    const TovuThemeEngine &theme = TovuThemeEngine::shared();
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(24);

    m_contentLabel = TovuLabels::plain(QString::fromStdString(m_page.content.value_or(std::string())),
                                       theme.font(15, QFont::Normal), QColor(), this);
    // With no text there is only the button.
    m_contentLabel->setVisible(m_page.content.has_value());
    layout->addWidget(m_contentLabel);

    const QString title = m_page.buttonText ? QString::fromStdString(*m_page.buttonText) : tr("Let's get started");
    m_startButton = new TovuButton(title, this);
    m_startButton->setFont(theme.font(16, QFont::DemiBold));
    m_startButton->setTitleColor(Qt::white);
    m_startButton->setCornerRadius(12);
    m_startButton->setFixedHeight(50);
    connect(m_startButton, &TovuButton::clicked, this, &TovuIntroView::startTapped);
    layout->addWidget(m_startButton);
    restyle();
}

// Also when the page moves into a sheet: it then inherits the host window's palette.
void TovuIntroView::restyle()
{
    const TovuThemeEngine &theme = TovuThemeEngine::shared();
    TovuLabels::setColor(m_contentLabel, theme.textColor());
    m_startButton->setBackgroundColor(theme.primaryColor(this));
}

void TovuIntroView::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange || event->type() == QEvent::ApplicationPaletteChange)
        restyle();
}

void TovuIntroView::startTapped()
{
    if (onStart)
        onStart();
}
