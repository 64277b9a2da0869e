#include "TovuDemoSession.h"

#include "TovuDemoBackend.h"

#include <tovukit_io/network/TovuNetworkService.h>

#include <QMetaEnum>
#include <QPointer>
#include <QUrl>

namespace {

constexpr const char *zone = "eu";

} // namespace

TovuDemoSession::TovuDemoSession(TovuDemoBackend &backend, QObject *parent)
    : QObject(parent)
    , m_backend(backend)
    , m_opener([this](const QUrl &url) {
        Q_EMIT note(QStringLiteral("The thank-you page opens %1 (the demo only logs it)").arg(url.toString()));
    })
{
    TovuNetworkService::shared().setBaseURLOverride(backend.url().toStdString());
    makeManager();
}

TovuDemoSession::~TovuDemoSession() = default;

void TovuDemoSession::makeManager()
{
    // The old manager goes first: it must not be told of the new one's path reports.
    m_manager.reset();
    m_manager = std::make_unique<TovuNativeSurveyManager>(
        TovuNativeSurveyManager::Dependencies{nullptr, &m_store, &m_monitor, nullptr, &m_opener, nullptr});
    TovuNativeSurveyManager *manager = m_manager.get();
    connect(manager, &TovuNativeSurveyManager::surveyShown, this, &TovuDemoSession::surveyShown);
    connect(manager, &TovuNativeSurveyManager::surveyDismissed, this, &TovuDemoSession::surveyDismissed);
    connect(manager, &TovuNativeSurveyManager::presentationRefused, this,
            [this](TovuNativeSurveyManager::PresentationRefusal reason) {
                Q_EMIT presentationRefused(QString::fromLatin1(
                    QMetaEnum::fromType<TovuNativeSurveyManager::PresentationRefusal>().valueToKey(int(reason))));
            });
    connect(manager, &TovuNativeSurveyManager::responseSent, this, [this](const QString &id) {
        Q_EMIT responseSent(id);
        Q_EMIT queueCountChanged(queuedCount());
    });
    connect(manager, &TovuNativeSurveyManager::responseQueued, this, [this](const QString &id, int count) {
        Q_EMIT responseQueued(id, count);
        Q_EMIT queueCountChanged(count);
    });
    connect(manager, &TovuNativeSurveyManager::queueFlushed, this, [this](int sent, int failed) {
        Q_EMIT queueFlushed(sent, failed);
        Q_EMIT queueCountChanged(queuedCount());
    });
    Q_EMIT managerChanged();
}

void TovuDemoSession::configure(Target target, const QString &id)
{
    if (target == Target::collector && m_manager->configuredSurveyId())
        makeManager();
    m_target = target;
    m_targetId = id;
    Q_EMIT targetChanged();
    if (target == Target::collector)
        m_manager->configure(TovuDemoBackend::apiKey, TovuCollectorId{id.toStdString()}, zone);
    else
        m_manager->configure(TovuDemoBackend::apiKey, TovuSurveyId{id.toStdString()}, zone);
}

void TovuDemoSession::showNow(QObject *host)
{
    m_manager->fetchAndPresentSurvey(host);
}

void TovuDemoSession::intercept(double afterSeconds, QObject *host)
{
    m_manager->startIntercept(afterSeconds, host);
}

void TovuDemoSession::showLowestResponse(QObject *host)
{
    m_manager->fetchAndPresentLowestResponseSurvey(sampleSurveyIds(), host);
}

QStringList TovuDemoSession::sampleSurveyIds() const
{
    QStringList ids;
    for (const TovuDemoSample &sample : m_backend.samples())
        ids << sample.surveyId;
    return ids;
}

void TovuDemoSession::setOnline(bool online)
{
    if (m_switching)
        return; // the switch under way reports when it is done
    if (online == m_online) {
        Q_EMIT onlineChanged(m_online);
        return;
    }
    m_switching = true;
    // Offline: first the backend stops answering, then the monitor says so.
    // Online: first the backend answers again, so the flush that the monitor's
    // report starts gets through.
    m_backend.setReachable(online, [this, self = QPointer(this), online](bool ok) {
        if (!self)
            return;
        m_switching = false;
        if (!ok) {
            Q_EMIT note(QStringLiteral("The backend did not take the change; still %1")
                            .arg(m_online ? QStringLiteral("online") : QStringLiteral("offline")));
            Q_EMIT onlineChanged(m_online);
            return;
        }
        m_online = online;
        m_monitor.setStatus(online ? TovuPathStatus::satisfied : TovuPathStatus::unsatisfied);
        Q_EMIT onlineChanged(online);
    });
}

void TovuDemoSession::flushQueue()
{
    const int waiting = queuedCount();
    if (waiting == 0) {
        Q_EMIT note(QStringLiteral("The queue is empty: nothing to flush"));
        return;
    }
    m_manager->flushQueue([self = QPointer(this), waiting](bool allSent) {
        if (!self)
            return;
        Q_EMIT self->note(allSent ? QStringLiteral("Flush: all %1 response(s) sent").arg(waiting)
                                  : QStringLiteral("Flush: some responses failed and wait in the queue"));
        Q_EMIT self->queueCountChanged(self->queuedCount());
    });
}

int TovuDemoSession::queuedCount() const
{
    return static_cast<int>(m_manager->getQueuedResponses().size());
}
