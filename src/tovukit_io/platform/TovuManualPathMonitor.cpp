#include <tovukit_io/platform/TovuManualPathMonitor.h>

#include <QPointer>

TovuManualPathMonitor::TovuManualPathMonitor(TovuPathStatus initial, QObject *parent)
    : TovuPathMonitor(parent)
    , m_status(initial)
{ }

void TovuManualPathMonitor::start()
{
    if (m_started)
        return;
    m_started = true;
    reportLater(m_status);
}

void TovuManualPathMonitor::cancel()
{
    m_started = false;
    ++m_generation; // drops reports already posted
}

void TovuManualPathMonitor::setStatus(TovuPathStatus status)
{
    m_status = status;
    if (m_started)
        reportLater(status);
}

void TovuManualPathMonitor::reportLater(TovuPathStatus status)
{
    QMetaObject::invokeMethod(
        this,
        [this, status, generation = m_generation] {
            if (m_started && generation == m_generation)
                report(status);
        },
        Qt::QueuedConnection);
}
