#pragma once

#include <tovukit_io/web/TovuSurveyBridge.h>

#include <QList>
#include <QObject>
#include <QVariantList>
#include <QWebEngineScript>

class QWebChannel;
class QWebEnginePage;

/// Gives a survey page its message handler and carries what the page posts
/// to the native side.
///
/// Two scripts are injected into every document before any script of the
/// page runs:
/// - in the page's own world, `window.webkit.messageHandlers.surveyResponse`
///   with one function, `postMessage(body)`, which writes the body as JSON
///   text and passes it on as a DOM event;
/// - in an isolated world the page cannot reach, the web channel client,
///   which forwards that text to TovuSurveyBridge::postMessage. Messages
///   posted before the channel is connected wait for it, in order.
///
/// So the page reaches nothing native but postMessage, and that only with text.
class TovuUserContentController : public QObject
{
    Q_OBJECT

public:
    /// The name the page posts to and the bridge is published under.
    static constexpr const char *handlerName = "surveyResponse";
    /// The isolated world the web channel lives in.
    static constexpr quint32 channelWorld = QWebEngineScript::ApplicationWorld;
    /// Longer bodies are cut before they leave the page and refused here.
    static constexpr qsizetype maxBodyLength = qsizetype{1} << 20;
    /// Messages kept while the channel connects; later ones are dropped.
    static constexpr int maxPendingMessages = 64;

    explicit TovuUserContentController(TovuSurveyBridge::Receiver receiver, QObject *parent = nullptr);

    /// Publishes the bridge on a web channel of its own, sets it on `page` in
    /// the isolated world and adds the scripts to the page.
    void attach(QWebEnginePage *page);
    /// Publishes the bridge on `channel` (for a Qt Quick WebEngineView, whose
    /// channel and scripts are set through its properties).
    void publishOn(QWebChannel *channel);

    TovuSurveyBridge *bridge() const { return m_bridge; }

    /// Both scripts, as a page's script collection takes them.
    static QList<QWebEngineScript> scripts();
    /// The same, as the dictionaries a Qt Quick WebEngineView's
    /// `userScripts.collection` takes.
    static QVariantList scriptDescriptions();

private:
    TovuSurveyBridge *m_bridge;
};
