#include <tovukit_io/network/TovuNetworkServicePrivate.h>

#include <tovukit_io/model/TovuLog.h>

#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QNetworkRequest>
#include <QStringDecoder>

namespace {

constexpr std::string_view separatorLine = "━━━━━━━━━━━━━━━━━━━━━━━━━━━━━━━━━━━━━━━━━━━━";

// A reply with an HTTP status is judged by that status: Qt files a 400 as a
// "protocol" error, a 404 as a "content" one and a 407 as a proxy error, but
// the server's own answer says more. Only a reply without a status, or a
// successful status whose transfer broke off (its body is incomplete), is a
// transport error.
bool isTransportError(const QNetworkReply &reply, const QVariant &status)
{
    if (reply.error() == QNetworkReply::NoError)
        return false;
    return !status.isValid() || (status.toInt() >= 200 && status.toInt() <= 299);
}

TovuError transportError(const QNetworkReply &reply, std::chrono::milliseconds timeout)
{
    // Only the transfer time-out cancels our requests; say what happened
    // instead of Qt's generic "Operation canceled".
    if (reply.error() == QNetworkReply::OperationCanceledError) {
        return TovuError{"QNetworkReply", QNetworkReply::TimeoutError,
                         "The request timed out: no data for " + std::to_string(timeout.count()) + " ms"};
    }
    return TovuError{"QNetworkReply", reply.error(), reply.errorString().toStdString()};
}

} // namespace

TovuNetworkServicePrivate::TovuNetworkServicePrivate(TovuNetworkService *service)
    : q(service)
{ }

std::string TovuNetworkServicePrivate::origin(std::string_view hostPrefix) const
{
    if (baseURLOverride)
        return *baseURLOverride;
    return "https://" + std::string(hostPrefix) + serviceDomain;
}

std::string TovuNetworkServicePrivate::apiBaseURL() const
{
    if (!zone)
        return origin("api.");
    const std::string uat = environment == TovuEnvironment::uat ? "uat-" : "";
    return origin(uat + *zone + "-api.");
}

std::string TovuNetworkServicePrivate::feedbackBaseURL() const
{
    if (!zone)
        return origin("feedback-api.");
    const std::string uat = environment == TovuEnvironment::uat ? "uat-" : "";
    return origin(uat + *zone + "-feedback-api.");
}

QNetworkAccessManager *TovuNetworkServicePrivate::manager()
{
    // Made on first use, so it lives in the thread the calls come from.
    if (!m_manager)
        m_manager = new QNetworkAccessManager(q);
    return m_manager;
}

void TovuNetworkServicePrivate::addBearer(Headers &headers) const
{
    if (bearerToken)
        headers.emplace_back("Authorization", QByteArray::fromStdString("Bearer " + *bearerToken));
}

void TovuNetworkServicePrivate::send(const QByteArray &method, const QUrl &url, const Headers &headers,
                                     const QByteArray &body, ReplyHandler handler)
{
    QNetworkRequest request(url);
    request.setTransferTimeout(static_cast<int>(transferTimeout.count()));
    request.setRawHeader("Content-Type", "application/json");
    for (const auto &[name, value] : headers)
        request.setRawHeader(name, value);

    QNetworkReply *reply = manager()->sendCustomRequest(request, method, body);
    const auto timeout = transferTimeout;
    // The service is the context: once it is gone the handler is never called.
    QObject::connect(reply, &QNetworkReply::finished, q, [reply, timeout, handler = std::move(handler)] {
        reply->deleteLater();
        const QVariant status = reply->attribute(QNetworkRequest::HttpStatusCodeAttribute);
        if (isTransportError(*reply, status)) {
            handler(std::unexpected(transportError(*reply, timeout)));
            return;
        }
        handler(TovuHttpReply{status.isValid() ? status.toInt() : 0, reply->readAll()});
    });
}

namespace TovuConsole {

void separator()
{
    TovuLog::print(separatorLine);
}

void line(std::string_view label, std::string_view value)
{
    std::string text(label);
    text.append(value);
    TovuLog::print(text);
}

void body(std::string_view label, const QByteArray &body)
{
    QStringDecoder decoder(QStringDecoder::Utf8);
    [[maybe_unused]] const QString text = decoder.decode(body);
    if (!decoder.hasError())
        line(label, std::string_view(body.constData(), static_cast<std::size_t>(body.size())));
}

} // namespace TovuConsole

namespace TovuReply {

std::optional<QUrl> validUrl(const std::string &text)
{
    const QUrl url(QString::fromStdString(text), QUrl::StrictMode);
    if (!url.isValid() || url.host().isEmpty() || (url.scheme() != u"https" && url.scheme() != u"http"))
        return std::nullopt;
    return url;
}

bool isSuccess(int status)
{
    return status >= 200 && status <= 299;
}

std::string failureMessage(const TovuHttpReply &reply)
{
    const std::string_view body(reply.body.constData(), static_cast<std::size_t>(reply.body.size()));
    return TovuNetworkService::extractServerMessage(body).value_or("HTTP " + std::to_string(reply.status));
}

} // namespace TovuReply
