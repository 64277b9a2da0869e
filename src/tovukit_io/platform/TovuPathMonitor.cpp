#include <tovukit_io/platform/TovuManualPathMonitor.h>
#include <tovukit_io/platform/TovuNetworkInformationPathMonitor.h>

#ifdef Q_OS_LINUX
#include <tovukit_io/platform/TovuNetlinkPathMonitor.h>
#endif

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
    if (TovuNetworkInformationPathMonitor::loadBackend())
        return std::make_unique<TovuNetworkInformationPathMonitor>(parent);
#ifdef Q_OS_LINUX
    return std::make_unique<TovuNetlinkPathMonitor>(parent);
#else
    // Nothing here reports changes: say the network is there, so sends are
    // tried; one that fails is queued and tried again.
    return std::make_unique<TovuManualPathMonitor>(TovuPathStatus::satisfied, parent);
#endif
}
