#include <tovukit_io/web/TovuLowestResponseRequest.h>

#include <tovukit_io/model/TovuJsonCoding.h>
#include <tovukit_io/model/TovuLog.h>
#include <tovukit_io/network/TovuNetworkService.h>
#include <tovukit_io/network/TovuNetworkServicePrivate.h>

#include <QPointer>

namespace {

// The call's own records: it reads the page address, which the backend
// client's response-count call does not.
struct RequestBody {
    std::vector<std::string> surveyUUIDs;
};

struct ResponseData {
    std::optional<std::string> surveyUUID;
    std::optional<std::int64_t> responseCount;
    std::optional<std::string> surveyURL;
};

struct APIResponse {
    std::optional<bool> success;
    std::optional<std::string> message;
    std::optional<ResponseData> data;
};

} // namespace

template<>
struct tovu::json::RecordFields<RequestBody> {
    static constexpr std::string_view name = "RequestBody";
    static constexpr auto fields = std::tuple{field("surveyUUIDs", &RequestBody::surveyUUIDs)};
};

template<>
struct tovu::json::RecordFields<ResponseData> {
    static constexpr std::string_view name = "ResponseData";
    static constexpr auto fields = std::tuple{
        field("surveyUUID", &ResponseData::surveyUUID),
        field("responseCount", &ResponseData::responseCount),
        field("surveyURL", &ResponseData::surveyURL),
    };
};

template<>
struct tovu::json::RecordFields<APIResponse> {
    static constexpr std::string_view name = "APIResponse";
    static constexpr auto fields = std::tuple{
        field("success", &APIResponse::success),
        field("message", &APIResponse::message),
        field("data", &APIResponse::data),
    };
};

namespace {

TOVU_DEFINE_JSON_CODING(RequestBody)
TOVU_DEFINE_JSON_CODING(ResponseData)
TOVU_DEFINE_JSON_CODING(APIResponse)

// The transport of the shared backend client: same time-out, same judgement of
// replies, same event loop. Only the request and its reading are this call's own.
TovuNetworkServicePrivate &transport()
{
    static auto *sender = new TovuNetworkServicePrivate(&TovuNetworkService::shared());
    sender->transferTimeout = TovuNetworkService::shared().transferTimeout();
    return *sender;
}

std::string detailed(const TovuError &error)
{
    return error.domain + " (code " + std::to_string(error.code) + "): " + error.message;
}

TovuResult<std::string> surveyURLFrom(const QByteArray &body)
{
    if (body.isEmpty())
        return std::unexpected(TovuLowestResponseRequest::makeError("No data received"));
    TovuLog::print(">>> Tovu API Response: " + body.toStdString());
    const TovuResult<APIResponse> answer
        = tovuDecode<APIResponse>(std::string_view(body.constData(), static_cast<std::size_t>(body.size())));
    if (!answer) {
        TovuLog::print(">>> Decoding Error: " + answer.error().localizedDescription());
        TovuLog::print(">>> Detailed Error: " + detailed(answer.error()));
        return std::unexpected(answer.error());
    }
    if (answer->data && answer->data->surveyURL)
        return *answer->data->surveyURL;
    return std::unexpected(
        TovuLowestResponseRequest::makeError(answer->message.value_or("API Error: No surveyURL found in response")));
}

} // namespace

std::string TovuLowestResponseRequest::endpoint(const TovuNetworkService &service)
{
    const std::string origin = service.baseURLOverride().value_or("https://uat-api." + service.serviceDomain());
    return origin + path;
}

std::vector<std::pair<QByteArray, QByteArray>>
TovuLowestResponseRequest::headers(const std::optional<std::string> &apiKey)
{
    if (!apiKey || apiKey->empty())
        return {};
    return {{"x-api-key", QByteArray::fromStdString(*apiKey)}};
}

TovuError TovuLowestResponseRequest::makeError(std::string message)
{
    return TovuError{errorDomain, -1, std::move(message)};
}

void TovuLowestResponseRequest::fetchSurveyURL(std::vector<std::string> surveyUUIDs, std::optional<std::string> apiKey,
                                               std::function<void(TovuResult<std::string>)> completion)
{
    const std::optional<QUrl> url = TovuReply::validUrl(endpoint(TovuNetworkService::shared()));
    const TovuResult<std::string> body = tovuEncode(RequestBody{std::move(surveyUUIDs)});
    // Failures found before sending still complete after this returns, as a reply would.
    const auto later = [&completion](TovuResult<std::string> result) {
        QMetaObject::invokeMethod(
            &TovuNetworkService::shared(), [completion, result] { completion(result); }, Qt::QueuedConnection);
    };
    if (!url)
        return later(std::unexpected(makeError("Invalid API URL")));
    if (!body)
        return later(std::unexpected(body.error()));
    transport().send("POST", *url, headers(apiKey), QByteArray::fromStdString(*body),
                     [completion = std::move(completion)](TovuResult<TovuHttpReply> reply) {
                         if (!reply)
                             return completion(std::unexpected(reply.error()));
                         completion(surveyURLFrom(reply->body));
                     });
}

void TovuLowestResponseRequest::fetchAndShow(std::vector<std::string> surveyUUIDs, std::optional<std::string> apiKey,
                                             QObject *context, std::function<void(const QString &surveyURL)> show)
{
    fetchSurveyURL(std::move(surveyUUIDs), std::move(apiKey),
                   [context = QPointer(context), show = std::move(show)](TovuResult<std::string> result) {
                       if (!result) {
                           TovuLog::print("Error loading survey: " + result.error().localizedDescription());
                           return;
                       }
                       if (!context)
                           return;
                       QMetaObject::invokeMethod(
                           context, [show, url = QString::fromStdString(*result)] { show(url); }, Qt::QueuedConnection);
                   });
}
