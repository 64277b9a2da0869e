#pragma once

// Internal: the state of TovuNetworkService and what every call shares:
// URLs, the request, judging the reply, and the console block.

#include <tovukit_io/network/TovuNetworkService.h>

#include <QByteArray>
#include <QPointer>
#include <QUrl>

#include <string_view>
#include <utility>

class QNetworkAccessManager;

/// A reply that reached the HTTP layer: its status (0 when the reply is not
/// HTTP) and its body.
struct TovuHttpReply {
    int status = 0;
    QByteArray body;
};

class TovuNetworkServicePrivate
{
public:
    using Headers = std::vector<std::pair<QByteArray, QByteArray>>;
    using ReplyHandler = std::function<void(TovuResult<TovuHttpReply>)>;

    explicit TovuNetworkServicePrivate(TovuNetworkService *service);

    std::string origin(std::string_view hostPrefix) const;
    std::string apiBaseURL() const;
    std::string feedbackBaseURL() const;

    /// Sends one request with the settings every call shares; `handler` gets
    /// the reply, or the transport error, on the service's thread. Never called
    /// once the service is gone.
    void send(const QByteArray &method, const QUrl &url, const Headers &headers, const QByteArray &body,
              ReplyHandler handler);
    /// "Authorization: Bearer …", when a token is held.
    void addBearer(Headers &headers) const;

    TovuNetworkService *q;
    std::optional<std::string> apiKey;
    std::optional<std::string> zone;
    TovuEnvironment environment = TovuEnvironment::production;
    std::optional<std::string> bearerToken;
    std::string serviceDomain = "tovu.example";
    std::optional<std::string> baseURLOverride;
    std::chrono::milliseconds transferTimeout{60000};

private:
    QNetworkAccessManager *manager();

    QPointer<QNetworkAccessManager> m_manager;
};

/// The parts of a call's console block.
namespace TovuConsole {

void separator();
void line(std::string_view label, std::string_view value);
/// "<label><body>" when the body is UTF-8 text, as the backend sent it.
void body(std::string_view label, const QByteArray &body);

} // namespace TovuConsole

/// Helpers every call uses to judge a reply.
namespace TovuReply {

/// A URL as the call wrote it, or nothing when the text is not a valid absolute http(s) URL.
std::optional<QUrl> validUrl(const std::string &text);
bool isSuccess(int status);
/// The server's message for a failed status, else "HTTP <status>".
std::string failureMessage(const TovuHttpReply &reply);

} // namespace TovuReply
