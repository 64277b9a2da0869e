#include "TovuDemoBackend.h"

#include "TovuDevServer.h"
#include "TovuSurveyCatalog.h"

#include <QNetworkReply>
#include <QNetworkRequest>
#include <QUrl>

TovuDemoBackend::TovuDemoBackend(std::uint16_t port, QObject *parent)
    : QObject(parent)
{
    TovuDevServerOptions options;
    options.port = port;
    if (const auto catalog = TovuSurveyCatalog::load(options.dataDir)) {
        for (const TovuSurveyDocument &document : catalog->documents()) {
            const QString stem = QString::fromStdString(document.stem);
            m_samples.push_back({.stem = stem,
                                 .surveyId = QString::fromStdString(document.uuid),
                                 .title = QString::fromStdString(document.displayTitle),
                                 .collectorId = QStringLiteral("collector-") + stem});
        }
    } else {
        m_catalogError = QString::fromStdString(catalog.error());
    }
    m_server = std::make_unique<TovuDevServer>(options);
}

TovuDemoBackend::~TovuDemoBackend() = default;

bool TovuDemoBackend::start()
{
    if (!m_catalogError.isEmpty()) {
        m_error = m_catalogError;
        return false;
    }
    if (!m_server->start().empty())
        return true;
    m_error = QString::fromStdString(m_server->errorString());
    if (m_server->startError() == TovuDevServer::StartError::listen)
        m_error += QStringLiteral(" (is another program using it? --port 0 picks a free port)");
    return false;
}

QString TovuDemoBackend::errorString() const
{
    return m_error;
}

QString TovuDemoBackend::url() const
{
    return QString::fromStdString(m_server->url());
}

QString TovuDemoBackend::samplesError() const
{
    if (!m_catalogError.isEmpty() || !m_samples.empty())
        return m_catalogError;
    return QStringLiteral("the samples folder %1 has no survey documents")
        .arg(QString::fromStdString(TovuDevServerOptions{}.dataDir.string()));
}

const TovuDemoSample *TovuDemoBackend::findSample(const QString &text) const
{
    const QString wanted = text.isEmpty() ? QString::fromLatin1(defaultSample) : text;
    for (const TovuDemoSample &sample : m_samples) {
        if (sample.stem == wanted || sample.surveyId == wanted || sample.collectorId == wanted)
            return &sample;
    }
    return nullptr;
}

const TovuDemoSample *TovuDemoBackend::sampleForSurvey(const QString &surveyId) const
{
    for (const TovuDemoSample &sample : m_samples) {
        if (sample.surveyId == surveyId)
            return &sample;
    }
    return nullptr;
}

void TovuDemoBackend::devRequest(const QByteArray &method, const QString &path, const QByteArray &body,
                                 std::function<void(int, QByteArray)> done)
{
    QNetworkRequest request(QUrl(url() + path));
    request.setHeader(QNetworkRequest::ContentTypeHeader, QByteArrayLiteral("application/json"));
    request.setTransferTimeout(10000);
    if (!m_dev)
        m_dev = std::make_unique<QNetworkAccessManager>();
    QNetworkReply *reply = m_dev->sendCustomRequest(request, method, body);
    connect(reply, &QNetworkReply::finished, this, [reply, done = std::move(done)] {
        reply->deleteLater();
        done(reply->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt(), reply->readAll());
    });
}

void TovuDemoBackend::fetchStoredResponses(std::function<void(std::optional<QByteArray>)> done)
{
    devRequest("GET", QStringLiteral("/dev/responses"), {}, [done = std::move(done)](int status, QByteArray body) {
        done(status == 200 ? std::optional(std::move(body)) : std::nullopt);
    });
}

void TovuDemoBackend::setReachable(bool reachable, std::function<void(bool)> done)
{
    if (reachable) {
        devRequest("DELETE", QStringLiteral("/dev/faults"), {},
                   [done = std::move(done)](int status, const QByteArray &) { done(status == 200); });
        return;
    }
    // Every API request gets its connection closed unanswered. Qt sends a request
    // again once when that happens, so the rule must outlast many requests.
    devRequest("POST", QStringLiteral("/dev/faults"),
               QByteArrayLiteral(R"({"pathPrefix": "/", "drop": true, "count": 1000000})"),
               [done = std::move(done)](int status, const QByteArray &) { done(status / 100 == 2); });
}
