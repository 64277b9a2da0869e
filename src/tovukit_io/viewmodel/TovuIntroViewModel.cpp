#include <tovukit_io/viewmodel/TovuIntroViewModel.h>

TovuIntroViewModel::TovuIntroViewModel(TovuSurveyPage page, QObject *parent)
    : QObject(parent)
    , m_page(std::move(page))
{ }

QString TovuIntroViewModel::content() const
{
    return QString::fromStdString(m_page.content.value_or(std::string()));
}

bool TovuIntroViewModel::hasContent() const
{
    return m_page.content.has_value();
}

QString TovuIntroViewModel::buttonTitle() const
{
    return m_page.buttonText ? QString::fromStdString(*m_page.buttonText) : tr("Let's get started");
}

void TovuIntroViewModel::start()
{
    if (onStart)
        onStart();
}
