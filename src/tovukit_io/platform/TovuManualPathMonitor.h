#pragma once

#include <tovukit_io/platform/TovuPathMonitor.h>

/// A path monitor told by its owner: for hosts that know their connectivity
/// better than the system (a flight mode of their own, a captive portal) and
/// for tests. Reports go out on the next turn of the event loop, as a system
/// monitor's would.
class TovuManualPathMonitor : public TovuPathMonitor
{
    Q_OBJECT
public:
    explicit TovuManualPathMonitor(TovuPathStatus initial = TovuPathStatus::satisfied, QObject *parent = nullptr);

    void start() override;
    void cancel() override;
    bool isStarted() const { return m_started; }

    /// The path the monitor reports from now on; reported once started.
    void setStatus(TovuPathStatus status);
    TovuPathStatus status() const { return m_status; }

private:
    void reportLater(TovuPathStatus status);

    TovuPathStatus m_status;
    bool m_started = false;
    quint64 m_generation = 0;
};
