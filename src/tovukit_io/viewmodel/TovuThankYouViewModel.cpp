#include <tovukit_io/viewmodel/TovuThankYouViewModel.h>

#include <tovukit_io/platform/TovuUrlOpener.h>

#include <QCoreApplication>
#include <QTimer>
#include <QUrl>

namespace {

// The success green does not follow the theme.
QColor successGreen(qreal alpha)
{
    return QColor::fromRgbF(0.18f, 0.8f, 0.44f, static_cast<float>(alpha));
}

} // namespace

TovuThankYouViewModel::TovuThankYouViewModel(std::optional<TovuQuestion> question, TovuUrlOpener *opener,
                                             QObject *parent)
    : QObject(parent)
    , m_question(std::move(question))
    , m_opener(opener)
{ }

QString TovuThankYouViewModel::title() const
{
    return m_question ? QString::fromStdString(m_question->title) : tr("Thank you!");
}

QString TovuThankYouViewModel::subtitle() const
{
    return m_question && m_question->subtitle ? QString::fromStdString(*m_question->subtitle)
                                              : tr("Your feedback helps us improve.");
}

QString TovuThankYouViewModel::iconAccessibleName() const
{
    return tr("Done");
}

QColor TovuThankYouViewModel::discColor() const
{
    return successGreen(TovuPageMetrics::thankYouDiscAlpha);
}

QColor TovuThankYouViewModel::iconColor() const
{
    return successGreen(1.0);
}

void TovuThankYouViewModel::scheduleRedirect()
{
    if (m_redirectScheduled || !m_question || !m_question->redirectURL)
        return;
    const QUrl url(QString::fromStdString(*m_question->redirectURL), QUrl::StrictMode);
    if (!TovuUrlOpener::isOpenable(url))
        return;
    m_redirectScheduled = true;
    // Owned by the application, not by this model or its page: the address opens even if
    // the sheet is gone by then.
    QTimer::singleShot(redirectDelayMs, QCoreApplication::instance(), [url, opener = m_opener] {
        (opener ? opener : TovuUrlOpener::defaultOpener())->openIfValid(url);
    });
}
