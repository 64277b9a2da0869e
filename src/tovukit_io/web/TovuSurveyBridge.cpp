#include <tovukit_io/web/TovuSurveyBridge.h>

TovuSurveyBridge::TovuSurveyBridge(Receiver receiver, QObject *parent)
    : QObject(parent)
    , m_receiver(std::move(receiver))
{ }

void TovuSurveyBridge::postMessage(const QString &body)
{
    if (m_receiver)
        m_receiver(body);
}
