#include "TovuDemoActivity.h"

#include "TovuDemoBackend.h"

#include <tovukit_io/model/TovuLog.h>

#include <QPointer>
#include <QThread>
#include <QTime>

#include <cstdio>

TovuDemoActivity::TovuDemoActivity(TovuDemoBackend &backend, TovuDemoSession &session, QObject *parent)
    : QObject(parent)
    , m_backend(backend)
    , m_session(session)
    , m_online(session.isOnline())
{
    // Lines may come from any thread; the log is the GUI thread's.
    TovuLog::setHandler([self = QPointer(this)](std::string_view line) {
        const QString text = QString::fromUtf8(line.data(), static_cast<qsizetype>(line.size()));
        if (!self)
            return;
        if (QThread::currentThread() == self->thread())
            self->libraryLine(text);
        else
            QMetaObject::invokeMethod(
                self, [self, text] { self->libraryLine(text); }, Qt::QueuedConnection);
    });
    connectSession();
}

TovuDemoActivity::~TovuDemoActivity()
{
    TovuLog::setHandler({});
}

QString TovuDemoActivity::format(Source source, const QString &text)
{
    QString line = QTime::currentTime().toString(QStringLiteral("HH:mm:ss.zzz  "));
    switch (source) {
    case Source::library:
        return line + text;
    case Source::signal:
        return line + QStringLiteral("◆ ") + text;
    case Source::demo:
        return line + QStringLiteral("● ") + text;
    }
    return line + text;
}

void TovuDemoActivity::add(Source source, const QString &text)
{
    Q_EMIT lineAdded(source, text);
}

void TovuDemoActivity::note(const QString &text)
{
    add(Source::demo, text);
}

void TovuDemoActivity::libraryLine(const QString &text)
{
    if (text.contains(u"Error") || text.contains(QChar(0x274C)))
        m_lastLibraryError = text.trimmed();
    add(Source::library, text);
    if (m_echo) {
        std::fputs(text.toUtf8().constData(), stdout);
        std::fputc('\n', stdout);
        std::fflush(stdout);
    }
}

QString TovuDemoActivity::titleOf(const QString &surveyId) const
{
    const TovuDemoSample *sample = m_backend.sampleForSurvey(surveyId);
    return sample ? sample->title : surveyId;
}

void TovuDemoActivity::connectSession()
{
    const auto quoted = [this](const QString &surveyId) {
        const TovuDemoSample *sample = m_backend.sampleForSurvey(surveyId);
        return sample ? QStringLiteral("\"%1\"").arg(sample->title) : surveyId;
    };
    connect(&m_session, &TovuDemoSession::surveyShown, this,
            [this, quoted](const QString &id) { add(Source::signal, tr("surveyShown: %1").arg(quoted(id))); });
    connect(&m_session, &TovuDemoSession::surveyDismissed, this, [this](int answered) {
        add(Source::signal, tr("surveyDismissed: %1 question(s) answered").arg(answered));
    });
    connect(&m_session, &TovuDemoSession::presentationRefused, this,
            [this](const QString &reason) { add(Source::signal, tr("presentationRefused: %1").arg(reason)); });
    connect(&m_session, &TovuDemoSession::responseSent, this, [this](const QString &id) {
        add(Source::signal, tr("responseSent: %1").arg(id));
        refreshStoredResponses();
    });
    connect(&m_session, &TovuDemoSession::responseQueued, this, [this](const QString &id, int count) {
        add(Source::signal, tr("responseQueued: %1 (%2 waiting)").arg(id).arg(count));
    });
    connect(&m_session, &TovuDemoSession::queueFlushed, this, [this](int sent, int failed) {
        add(Source::signal, tr("queueFlushed: %1 sent, %2 failed").arg(sent).arg(failed));
        refreshStoredResponses();
    });
    connect(&m_session, &TovuDemoSession::onlineChanged, this, [this](bool online) {
        if (online == m_online)
            return;
        m_online = online;
        note(online ? tr("Online: the backend answers and the path monitor reports the network, so the manager "
                         "flushes its queue")
                    : tr("Offline: the backend closes every connection and the path monitor reports no network"));
    });
    connect(&m_session, &TovuDemoSession::note, this, &TovuDemoActivity::note);
}

void TovuDemoActivity::configure(TovuDemoSession::Target target, const QString &id)
{
    const QString key = QString::fromLatin1(TovuDemoBackend::apiKey);
    note(target == TovuDemoSession::Target::collector ? tr("configure(\"%1\", collectorId \"%2\", \"eu\")").arg(key, id)
                                                      : tr("configure(\"%1\", surveyId \"%2\", \"eu\")").arg(key, id));
    m_session.configure(target, id);
}

void TovuDemoActivity::refreshStoredResponses()
{
    m_backend.fetchStoredResponses([self = QPointer(this)](std::optional<QByteArray> body) {
        if (!self)
            return;
        if (const auto responses = body ? TovuDemoStoredResponses::parse(*body) : std::nullopt)
            Q_EMIT self->storedResponsesChanged(*responses);
        else
            self->note(tr("Could not read the stored responses"));
        Q_EMIT self->storedResponsesRefreshed();
    });
}
