#pragma once

#include "TovuDemoSession.h"
#include "TovuDemoStoredResponses.h"

#include <QObject>
#include <QString>

#include <optional>

class TovuDemoBackend;

/// What happens in a demo run, as its log tells it and whichever toolkit shows
/// it: the library's console lines (routed here with TovuLog::setHandler while
/// this object exists), the manager's signals and the demo's own notes, and
/// the responses the backend has stored, read again whenever one arrives.
///
/// \code
/// TovuDemoActivity activity(backend, session);
/// connect(&activity, &TovuDemoActivity::lineAdded, log, [log](auto source, const QString &text) {
///     log->append(TovuDemoActivity::format(source, text));
/// });
/// activity.configure(TovuDemoSession::Target::collector, sample.collectorId); // logged, then done
/// \endcode
class TovuDemoActivity : public QObject
{
    Q_OBJECT
public:
    enum class Source {
        library, ///< a TovuLog console line
        signal, ///< a signal of the manager
        demo, ///< the demo's own note
    };
    Q_ENUM(Source)

    TovuDemoActivity(TovuDemoBackend &backend, TovuDemoSession &session, QObject *parent = nullptr);
    ~TovuDemoActivity() override;

    /// Also writes the library's console lines to standard output.
    void setEcho(bool echo) { m_echo = echo; }
    /// A line of the demo's own.
    void note(const QString &text);
    /// Configures the session, and says so first.
    void configure(TovuDemoSession::Target target, const QString &id);
    /// Asks the backend for its stored responses: storedResponsesChanged when it
    /// answers, then storedResponsesRefreshed.
    void refreshStoredResponses();
    /// A survey's title as the samples name it, else its id.
    QString titleOf(const QString &surveyId) const;
    /// The last console line that reported a failure, empty when none did.
    QString lastLibraryError() const { return m_lastLibraryError; }

    /// A line as the log shows it: its time, a mark for its source, the text.
    static QString format(Source source, const QString &text);

Q_SIGNALS:
    void lineAdded(TovuDemoActivity::Source source, const QString &text);
    void storedResponsesChanged(const TovuDemoStoredResponses &responses);
    /// The stored responses were read (or could not be).
    void storedResponsesRefreshed();

private:
    void add(Source source, const QString &text);
    void libraryLine(const QString &text);
    void connectSession();

    TovuDemoBackend &m_backend;
    TovuDemoSession &m_session;
    bool m_echo = false;
    bool m_online = true;
    QString m_lastLibraryError;
};
