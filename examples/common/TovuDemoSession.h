#pragma once

#include "TovuDemoUrlOpener.h"

#include <tovukit_io/core/TovuNativeSurveyManager.h>
#include <tovukit_io/platform/TovuManualPathMonitor.h>
#include <tovukit_io/platform/TovuMemoryKeyValueStore.h>

#include <QObject>
#include <QString>
#include <QStringList>

#include <memory>

class TovuDemoBackend;

/// What the demo host app does with the library: one survey manager against
/// the local backend, with a connectivity switch the user controls (a
/// TovuManualPathMonitor; going offline also makes the backend unreachable,
/// so a submission really fails), a queue kept in memory (the backend's
/// database is fresh each run too) and thank-you links that are only logged.
///
/// The manager's signals are forwarded, so listeners connect once even when
/// the manager is replaced (see configure()). A host is whatever the front end
/// linked in can cover: a QWidget, or a QQuickWindow or QQuickItem.
class TovuDemoSession : public QObject
{
    Q_OBJECT
    /// The manager of the moment, for QML: it offers the same operations as the
    /// `TovuNativeSurveyManager` singleton of `import TovuKit`.
    Q_PROPERTY(QObject *manager READ managerObject NOTIFY managerChanged)
public:
    enum class Target { collector, survey };
    Q_ENUM(Target)

    explicit TovuDemoSession(TovuDemoBackend &backend, QObject *parent = nullptr);
    ~TovuDemoSession() override;

    TovuNativeSurveyManager &manager() const { return *m_manager; }
    QObject *managerObject() const { return m_manager.get(); }

    /// Configures the demo key with a collector id or a survey id; the key is
    /// verified and the survey pre-fetched. A manager keeps using a survey id
    /// once it has one, so going back to a collector id
    /// starts a fresh manager.
    void configure(Target target, const QString &id);
    Target target() const { return m_target; }
    QString targetId() const { return m_targetId; }

    void showNow(QObject *host);
    void intercept(double afterSeconds, QObject *host);
    void showLowestResponse(QObject *host);
    /// Every sample's survey id, as fetchAndPresentLowestResponseSurvey takes them.
    QStringList sampleSurveyIds() const;

    /// Offline: the backend closes every connection unanswered and the path
    /// monitor reports no network. Online again: the backend answers, the
    /// monitor reports the network, and the manager flushes its queue.
    void setOnline(bool online);
    bool isOnline() const { return m_online; }
    void flushQueue();
    int queuedCount() const;

Q_SIGNALS:
    /// configure() made a fresh manager.
    void managerChanged();
    void targetChanged();
    void surveyShown(const QString &surveyId);
    void surveyDismissed(int answeredCount);
    void presentationRefused(const QString &reason);
    void responseSent(const QString &responseId);
    void responseQueued(const QString &responseId, int queuedCount);
    void queueFlushed(int sent, int failed);
    void queueCountChanged(int count);
    /// A switch ended (also one that changed nothing): the state from now on.
    void onlineChanged(bool online);
    /// Something the demo itself has to say, for its log.
    void note(const QString &text);

private:
    void makeManager();

    TovuDemoBackend &m_backend;
    TovuMemoryKeyValueStore m_store;
    TovuManualPathMonitor m_monitor;
    TovuDemoUrlOpener m_opener;
    std::unique_ptr<TovuNativeSurveyManager> m_manager;
    Target m_target = Target::collector;
    QString m_targetId;
    bool m_online = true;
    bool m_switching = false;
};
