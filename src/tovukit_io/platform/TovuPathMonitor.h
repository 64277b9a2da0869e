#pragma once

#include <tovukit_io/platform/TovuPathStatus.h>

#include <QObject>

#include <functional>
#include <memory>
#include <optional>

/// Watches whether the network is usable and reports every change of path,
/// always on the thread the monitor lives in (the GUI thread), after start()
/// has returned. The first report after start() tells the current path.
///
/// \code
/// auto monitor = TovuPathMonitor::createDefault();
/// monitor->pathUpdateHandler = [](TovuPathStatus status) { ... };
/// monitor->start();
/// \endcode
class TovuPathMonitor : public QObject
{
    Q_OBJECT
public:
    explicit TovuPathMonitor(QObject *parent = nullptr);
    ~TovuPathMonitor() override;

    /// Starts watching; the current path is reported soon after.
    virtual void start() = 0;
    /// Stops watching; no report arrives after this returns.
    virtual void cancel() = 0;

    /// The path last reported, if any.
    std::optional<TovuPathStatus> currentStatus() const { return m_currentStatus; }

    /// The system's monitor: QNetworkInformation where its backend reports
    /// changes, otherwise a watcher of the kernel's routing table on Linux.
    /// Elsewhere, without such a backend, the monitor reports satisfied once
    /// and nothing after; hosts there that know their connectivity should
    /// pass a TovuManualPathMonitor and keep it told. Call on the GUI thread.
    static std::unique_ptr<TovuPathMonitor> createDefault(QObject *parent = nullptr);

    std::function<void(TovuPathStatus)> pathUpdateHandler;

Q_SIGNALS:
    void pathUpdated(TovuPathStatus status);

protected:
    /// Records `status` and tells the handler and the signal. GUI thread only.
    void report(TovuPathStatus status);

private:
    std::optional<TovuPathStatus> m_currentStatus;
};
