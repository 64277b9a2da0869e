#pragma once

#include <tovukit_io/platform/TovuPathMonitor.h>

/// The path as Qt's QNetworkInformation sees it, for the backends that report
/// changes (NetworkManager, Android, Apple, Windows). Only changes are
/// reported, plus the path at start.
class TovuNetworkInformationPathMonitor : public TovuPathMonitor
{
    Q_OBJECT
public:
    /// Loads a backend that knows reachability; true when the one loaded also
    /// reports its changes (Qt 6.4's glib backend answers once and then never).
    static bool loadBackend();

    explicit TovuNetworkInformationPathMonitor(QObject *parent = nullptr);
    ~TovuNetworkInformationPathMonitor() override;

    void start() override;
    void cancel() override;

private:
    void deliver(TovuPathStatus status);

    QMetaObject::Connection m_connection;
    bool m_started = false;
    bool m_firstReport = true;
    quint64 m_generation = 0; // bumped by cancel(): the first report, if still pending, is dropped
};
