#include <tovukit_io/platform/TovuManualPathMonitor.h>

TovuPathMonitor::TovuPathMonitor(QObject *parent)
    : QObject(parent)
{ }

TovuPathMonitor::~TovuPathMonitor() = default;

void TovuPathMonitor::report(TovuPathStatus status)
{
    m_currentStatus = status;
    if (pathUpdateHandler)
        pathUpdateHandler(status);
    Q_EMIT pathUpdated(status);
}

std::unique_ptr<TovuPathMonitor> TovuPathMonitor::createDefault(QObject *parent)
{
    return std::make_unique<TovuManualPathMonitor>(TovuPathStatus::satisfied, parent);
}
