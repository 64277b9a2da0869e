#pragma once

#include <tovukit_io/platform/TovuPathMonitor.h>

#include <memory>
#include <optional>
#include <string>

class QThread;

/// Linux's path monitor where QNetworkInformation tells nothing of changes:
/// watches the kernel's links and routes over a NETLINK_ROUTE socket on a thread
/// of its own ("com.tovu.network_monitor"). The path is satisfied while an
/// interface other than loopback is up and running and carries a default route
/// of the main table (IPv4 or IPv6). Only changes are reported, on the thread
/// the monitor lives in. If the socket fails, the monitor says why on the
/// console, reports satisfied and stops watching: a send that fails is queued,
/// a send never tried would wait forever.
class TovuNetlinkPathMonitor : public TovuPathMonitor
{
    Q_OBJECT
public:
    explicit TovuNetlinkPathMonitor(QObject *parent = nullptr);
    ~TovuNetlinkPathMonitor() override;

    void start() override;
    void cancel() override;

private:
    // Called from the watcher thread; the report runs on this object's thread.
    // A failure goes to the console; no status when nothing changed.
    void post(quint64 generation, std::optional<TovuPathStatus> status, std::string failure);

    std::unique_ptr<QThread> m_thread;
    int m_wakeFd = -1; // an eventfd the watcher polls beside its socket
    quint64 m_generation = 0; // bumped by cancel(): reports already posted are dropped
};
