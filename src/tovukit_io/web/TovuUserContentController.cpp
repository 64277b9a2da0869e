#include <tovukit_io/web/TovuUserContentController.h>

#include <tovukit_io/model/TovuLog.h>

#include <QFile>
#include <QWebChannel>
#include <QWebEnginePage>
#include <QWebEngineScriptCollection>

namespace {

// The DOM event that carries a message from the page's world to the isolated one.
constexpr QLatin1StringView eventName{"tovukit-survey-response"};

// In the page's world. The handler is frozen and defined read-only, so the page
// cannot swap it for something else. A body JSON cannot write (a cycle, a
// function, undefined, a BigInt) goes as the page's own text for it, which the
// native side then refuses as not JSON.
constexpr QLatin1StringView pageScript{R"JS(
(function () {
  'use strict';
  if (window.webkit && window.webkit.messageHandlers && window.webkit.messageHandlers.%2) return;
  function asText(body) {
    try {
      var json = JSON.stringify(body);
      if (typeof json === 'string') return json;
    } catch (e) {}
    try { return String(body); } catch (e) { return '[unprintable]'; }
  }
  var handler = Object.freeze({
    postMessage: function (body) {
      document.dispatchEvent(new CustomEvent('%1', {detail: asText(body)}));
    }
  });
  var webkit = Object.freeze({messageHandlers: Object.freeze({%2: handler})});
  try {
    Object.defineProperty(window, 'webkit', {value: webkit, enumerable: false, configurable: false, writable: false});
  } catch (e) {}
})();
)JS"};

// In the isolated world, after qwebchannel.js. Holds messages until the channel
// is connected, cuts oversized ones so they do not cross whole, and never
// throws into the page.
constexpr QLatin1StringView channelScript{R"JS(
(function () {
  'use strict';
  var pending = [];
  var bridge = null;
  function deliver(text) {
    if (text.length > %3) text = text.slice(0, %3 + 1);
    if (bridge) bridge.postMessage(text);
    else if (pending.length < %4) pending.push(text);
  }
  document.addEventListener('%1', function (event) {
    var detail = event.detail;
    try { deliver(typeof detail === 'string' ? detail : String(detail)); } catch (e) {}
  });
  function connect(attempt) {
    if (typeof qt === 'undefined' || !qt.webChannelTransport) {
      if (attempt < 100) setTimeout(function () { connect(attempt + 1); }, 10);
      return;
    }
    new QWebChannel(qt.webChannelTransport, function (channel) {
      bridge = channel.objects.%2;
      pending.splice(0).forEach(function (text) { bridge.postMessage(text); });
    });
  }
  connect(0);
})();
)JS"};

QString webChannelClient()
{
    // Shipped inside QtWebChannel as a resource.
    QFile file(QStringLiteral(":/qtwebchannel/qwebchannel.js"));
    if (!file.open(QIODevice::ReadOnly)) {
        TovuLog::print(">>> Web channel client not found: the survey page cannot post messages");
        return {};
    }
    return QString::fromUtf8(file.readAll());
}

QWebEngineScript makeScript(const QString &name, const QString &source, quint32 world)
{
    QWebEngineScript script;
    script.setName(name);
    script.setSourceCode(source);
    script.setInjectionPoint(QWebEngineScript::DocumentCreation);
    script.setWorldId(world);
    script.setRunsOnSubFrames(false);
    return script;
}

} // namespace

TovuUserContentController::TovuUserContentController(TovuSurveyBridge::Receiver receiver, QObject *parent)
    : QObject(parent)
    , m_bridge(new TovuSurveyBridge(std::move(receiver), this))
{ }

void TovuUserContentController::attach(QWebEnginePage *page)
{
    auto *channel = new QWebChannel(this);
    publishOn(channel);
    page->setWebChannel(channel, channelWorld);
    page->scripts().insert(scripts());
}

void TovuUserContentController::publishOn(QWebChannel *channel)
{
    channel->registerObject(QLatin1StringView(handlerName), m_bridge);
}

QList<QWebEngineScript> TovuUserContentController::scripts()
{
    static const QList<QWebEngineScript> list = [] {
        const QString handler = QLatin1StringView(handlerName);
        const QString page = QString(pageScript).arg(eventName, handler);
        const QString channel = webChannelClient()
            + QString(channelScript)
                  .arg(eventName, handler, QString::number(maxBodyLength), QString::number(maxPendingMessages));
        return QList<QWebEngineScript>{
            makeScript(QStringLiteral("tovukit-message-handler"), page, QWebEngineScript::MainWorld),
            makeScript(QStringLiteral("tovukit-web-channel"), channel, channelWorld),
        };
    }();
    return list;
}

QVariantList TovuUserContentController::scriptDescriptions()
{
    QVariantList descriptions;
    for (const QWebEngineScript &script : scripts()) {
        descriptions.append(QVariantMap{
            {QStringLiteral("name"), script.name()},
            {QStringLiteral("sourceCode"), script.sourceCode()},
            {QStringLiteral("injectionPoint"), static_cast<int>(script.injectionPoint())},
            {QStringLiteral("worldId"), script.worldId()},
            {QStringLiteral("runsOnSubFrames"), script.runsOnSubFrames()},
        });
    }
    return descriptions;
}
