#include <tovukit_io/platform/TovuNetworkInformationPathMonitor.h>

#include <QNetworkInformation>

namespace {

TovuPathStatus pathStatus(QNetworkInformation::Reachability reachability)
{
    switch (reachability) {
    case QNetworkInformation::Reachability::Online:
        return TovuPathStatus::satisfied;
    case QNetworkInformation::Reachability::Disconnected:
    case QNetworkInformation::Reachability::Local:
    case QNetworkInformation::Reachability::Site:
        return TovuPathStatus::unsatisfied;
    case QNetworkInformation::Reachability::Unknown:
        break;
    }
    // The backend cannot tell: try sending rather than hold responses back
    // for ever. A send that fails is queued and tried again later.
    return TovuPathStatus::satisfied;
}

TovuPathStatus currentPathStatus()
{
    const QNetworkInformation *information = QNetworkInformation::instance();
    return information ? pathStatus(information->reachability()) : TovuPathStatus::satisfied;
}

} // namespace

bool TovuNetworkInformationPathMonitor::loadBackend()
{
    if (!QNetworkInformation::loadBackendByFeatures(QNetworkInformation::Feature::Reachability))
        return false;
    // Names as Qt's backends give them; an unknown backend is not trusted to report changes.
    static const QStringList reportingBackends{
        QStringLiteral("networkmanager"), QStringLiteral("android"), QStringLiteral("scnetworkreachability"),
        QStringLiteral("apple"),          QStringLiteral("darwin"),  QStringLiteral("networklistmanager"),
    };
    return reportingBackends.contains(QNetworkInformation::instance()->backendName(), Qt::CaseInsensitive);
}

TovuNetworkInformationPathMonitor::TovuNetworkInformationPathMonitor(QObject *parent)
    : TovuPathMonitor(parent)
{ }

TovuNetworkInformationPathMonitor::~TovuNetworkInformationPathMonitor()
{
    TovuNetworkInformationPathMonitor::cancel();
}

void TovuNetworkInformationPathMonitor::start()
{
    if (m_started)
        return;
    m_started = true;
    m_firstReport = true;
    if (const QNetworkInformation *information = QNetworkInformation::instance()) {
        m_connection = connect(information, &QNetworkInformation::reachabilityChanged, this,
                               [this](QNetworkInformation::Reachability reachability) {
                                   if (m_started)
                                       deliver(pathStatus(reachability));
                               });
    }
    QMetaObject::invokeMethod(
        this,
        [this, generation = m_generation] {
            if (generation == m_generation)
                deliver(currentPathStatus());
        },
        Qt::QueuedConnection);
}

void TovuNetworkInformationPathMonitor::cancel()
{
    disconnect(m_connection);
    m_started = false;
    ++m_generation;
}

void TovuNetworkInformationPathMonitor::deliver(TovuPathStatus status)
{
    if (!m_firstReport && currentStatus() == status)
        return;
    m_firstReport = false;
    report(status);
}
