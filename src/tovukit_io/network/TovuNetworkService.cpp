#include <tovukit_io/network/TovuNetworkService.h>

#include <tovukit_io/model/TovuDecode.h>
#include <tovukit_io/model/TovuJsonCoding.h>
#include <tovukit_io/model/TovuLog.h>
#include <tovukit_io/network/TovuAPISurveyDataJson.h>
#include <tovukit_io/network/TovuFeedbackRequestJson.h>
#include <tovukit_io/network/TovuNetworkServicePrivate.h>

#include <nlohmann/json.hpp>

using Json = nlohmann::ordered_json;

namespace {

// The response-count call's own records.
struct LowestResponseRequest {
    std::vector<std::string> surveyUUIDs;
};

struct LowestResponseData {
    std::optional<std::string> surveyUUID;
    std::optional<std::string> surveyId;
};

struct LowestResponseAnswer {
    std::optional<bool> success;
    std::optional<std::string> message;
    std::optional<LowestResponseData> data;
};

} // namespace

template<>
struct tovu::json::RecordFields<LowestResponseRequest> {
    static constexpr std::string_view name = "RequestBody";
    static constexpr auto fields = std::tuple{field("surveyUUIDs", &LowestResponseRequest::surveyUUIDs)};
};

template<>
struct tovu::json::RecordFields<LowestResponseData> {
    static constexpr std::string_view name = "ResponseData";
    static constexpr auto fields = std::tuple{
        field("surveyUUID", &LowestResponseData::surveyUUID),
        field("surveyId", &LowestResponseData::surveyId),
    };
};

template<>
struct tovu::json::RecordFields<LowestResponseAnswer> {
    static constexpr std::string_view name = "APIResponse";
    static constexpr auto fields = std::tuple{
        field("success", &LowestResponseAnswer::success),
        field("message", &LowestResponseAnswer::message),
        field("data", &LowestResponseAnswer::data),
    };
};

namespace {

TOVU_DEFINE_JSON_CODING(LowestResponseRequest)
TOVU_DEFINE_JSON_CODING(LowestResponseData)
TOVU_DEFINE_JSON_CODING(LowestResponseAnswer)

std::string_view textOf(const QByteArray &bytes)
{
    return {bytes.constData(), static_cast<std::size_t>(bytes.size())};
}

/// The body as a JSON object, or nothing.
std::optional<Json> jsonObject(const QByteArray &body)
{
    Json json = Json::parse(textOf(body), nullptr, false);
    if (json.is_discarded() || !json.is_object())
        return std::nullopt;
    return json;
}

/// A member that is text, or nothing.
std::optional<std::string> textMember(const Json &object, std::string_view key)
{
    const auto it = object.find(key);
    if (it == object.end() || !it->is_string())
        return std::nullopt;
    return it->get<std::string>();
}

/// A member that is an object, or nullptr.
const Json *objectMember(const Json &object, std::string_view key)
{
    const auto it = object.find(key);
    return it != object.end() && it->is_object() ? &*it : nullptr;
}

std::string keysOf(const Json &object)
{
    std::string keys;
    for (const auto &[key, value] : object.items()) {
        if (!keys.empty())
            keys += ", ";
        keys += key;
    }
    return keys;
}

// The verify answer's token, wherever the backend put it.
std::optional<std::string> bearerTokenIn(const Json &object)
{
    const Json *data = objectMember(object, "data");
    for (auto token : {textMember(object, "access_token"), textMember(object, "token"),
                       data ? textMember(*data, "token") : std::nullopt, textMember(object, "bearerToken"),
                       data ? textMember(*data, "access_token") : std::nullopt}) {
        if (token)
            return token;
    }
    return std::nullopt;
}

std::string printedList(const std::vector<std::string> &items)
{
    std::string text = "[";
    for (std::size_t i = 0; i < items.size(); ++i)
        text += (i == 0 ? "\"" : ", \"") + items[i] + '"';
    return text + ']';
}

template<class T>
void fail(const std::function<void(TovuResult<T>)> &completion, std::string message)
{
    completion(std::unexpected(TovuNetworkService::makeServiceError(std::move(message))));
}

// The labels a call's console block gives the reply (each call pads its own).
struct ReplyLabels {
    std::string_view status;
    std::string_view response;
    std::string_view failure; ///< empty: a failed status is not printed
};

constexpr ReplyLabels verifyLabels{"    Status   : ", "    Response : ", "    ❌ Verify failed: "};
constexpr ReplyLabels collectorLabels{"    Status  : ", "    Response: ", "    ❌ Collector fetch failed: "};
constexpr ReplyLabels surveyLabels{"    Status  : ", "    Response: ", "    ❌ Survey fetch failed: "};
constexpr ReplyLabels submitLabels{"    Status       : ", "    Response     : ", "    ❌ Submit failed: "};
constexpr ReplyLabels lowestLabels{"    Status  : ", "    Response: ", ""};

// What every call does first with a reply: pass a transport error on, print
// status and body, and fail with the server's message unless the status is
// 2xx. Gives the reply to go on with, or nullptr when the call is over.
template<class T>
const TovuHttpReply *successfulReply(const TovuResult<TovuHttpReply> &result, const ReplyLabels &labels,
                                     const std::function<void(TovuResult<T>)> &completion)
{
    if (!result) {
        completion(std::unexpected(result.error()));
        return nullptr;
    }
    TovuConsole::line(labels.status, std::to_string(result->status));
    TovuConsole::body(labels.response, result->body);
    if (TovuReply::isSuccess(result->status))
        return &*result;
    const std::string message = TovuReply::failureMessage(*result);
    if (!labels.failure.empty())
        TovuConsole::line(labels.failure, message);
    fail(completion, message);
    return nullptr;
}

} // namespace

TovuNetworkService &TovuNetworkService::shared()
{
    // Deliberately never destroyed: hosts may call it until the very end of
    // the process, after any static destruction order would have removed it.
    static auto *instance = new TovuNetworkService;
    return *instance;
}

TovuNetworkService::TovuNetworkService(QObject *parent)
    : QObject(parent)
    , d(std::make_unique<TovuNetworkServicePrivate>(this))
{ }

TovuNetworkService::~TovuNetworkService() = default;

void TovuNetworkService::configure(std::string apiKey, std::string zone, TovuEnvironment environment)
{
    d->apiKey = std::move(apiKey);
    d->zone = std::move(zone);
    d->environment = environment;
    d->bearerToken.reset();
}

void TovuNetworkService::setBearerToken(std::string token)
{
    d->bearerToken = std::move(token);
}

std::optional<std::string> TovuNetworkService::apiKey() const
{
    return d->apiKey;
}

std::optional<std::string> TovuNetworkService::zone() const
{
    return d->zone;
}

TovuEnvironment TovuNetworkService::environment() const
{
    return d->environment;
}

std::optional<std::string> TovuNetworkService::bearerToken() const
{
    return d->bearerToken;
}

std::string TovuNetworkService::apiBaseURL() const
{
    return d->apiBaseURL();
}

std::string TovuNetworkService::feedbackBaseURL() const
{
    return d->feedbackBaseURL();
}

void TovuNetworkService::setServiceDomain(std::string domain)
{
    d->serviceDomain = std::move(domain);
}

std::string TovuNetworkService::serviceDomain() const
{
    return d->serviceDomain;
}

void TovuNetworkService::setBaseURLOverride(std::optional<std::string> origin)
{
    d->baseURLOverride = std::move(origin);
}

std::optional<std::string> TovuNetworkService::baseURLOverride() const
{
    return d->baseURLOverride;
}

void TovuNetworkService::setTransferTimeout(std::chrono::milliseconds timeout)
{
    d->transferTimeout = timeout;
}

std::chrono::milliseconds TovuNetworkService::transferTimeout() const
{
    return d->transferTimeout;
}

TovuError TovuNetworkService::makeServiceError(std::string message)
{
    return TovuError{"TovuNetworkService", 0, std::move(message)};
}

std::optional<std::string> TovuNetworkService::extractServerMessage(std::string_view body)
{
    const Json json = Json::parse(body, nullptr, false);
    if (json.is_discarded() || !json.is_object())
        return std::nullopt;
    if (auto message = textMember(json, "message"))
        return message;
    const Json *data = objectMember(json, "data");
    const Json *errors = data ? objectMember(*data, "errors") : nullptr;
    return errors ? textMember(*errors, "detail") : std::nullopt;
}

void TovuNetworkService::verifyApiKey(std::function<void(TovuResult<std::string>)> completion)
{
    if (!d->apiKey || !d->zone)
        return fail(completion, "API Key or Zone missing. Call configure() first.");
    // Always the main API host, whatever the zone and environment.
    const std::string urlText = d->origin("api.") + "/api/v1/api-key/verify?zone=" + *d->zone;
    const std::optional<QUrl> url = TovuReply::validUrl(urlText);
    if (!url)
        return fail(completion, "Invalid verify URL: " + urlText);

    TovuConsole::separator();
    TovuLog::print(">>> Tovu SDK [Step 0] Verifying API key");
    TovuConsole::line("    URL  : ", urlText);

    const TovuNetworkServicePrivate::Headers headers{{"x-api-key", QByteArray::fromStdString(*d->apiKey)}};
    d->send("GET", *url, headers, {}, [this, completion = std::move(completion)](TovuResult<TovuHttpReply> result) {
        const TovuHttpReply *reply = successfulReply(result, verifyLabels, completion);
        if (!reply)
            return;
        const std::optional<Json> json = jsonObject(reply->body);
        if (!json)
            return fail(completion, "Invalid verify response format");
        std::optional<std::string> token = bearerTokenIn(*json);
        if (!token) {
            TovuConsole::line("    ❌ Bearer token not found — keys: ", keysOf(*json));
            return fail(completion, "Bearer token not found in verify response");
        }
        d->bearerToken = *token;
        TovuLog::print("    ✅ Bearer token obtained");
        TovuConsole::separator();
        completion(std::move(*token));
    });
}

void TovuNetworkService::fetchCollector(std::string collectorId,
                                        std::function<void(TovuResult<CollectorInfo>)> completion)
{
    const std::string urlText = d->apiBaseURL() + "/v3/collectors/collect/" + collectorId;
    const std::optional<QUrl> url = TovuReply::validUrl(urlText);
    if (!url)
        return fail(completion, "Invalid collector URL: " + urlText);

    TovuConsole::separator();
    TovuLog::print(">>> Tovu SDK [Step 1/3] Fetch Collector");
    TovuConsole::line("    URL         : ", urlText);
    TovuConsole::line("    collectorId : ", collectorId);

    TovuNetworkServicePrivate::Headers headers;
    d->addBearer(headers); // sent when held, not required
    d->send("GET", *url, headers, {}, [completion = std::move(completion)](TovuResult<TovuHttpReply> result) {
        const TovuHttpReply *reply = successfulReply(result, collectorLabels, completion);
        if (!reply)
            return;
        const std::optional<Json> json = jsonObject(reply->body);
        if (!json) {
            TovuLog::print("    ❌ Invalid collector response format");
            return fail(completion, "Invalid collector response format");
        }
        const Json *data = objectMember(*json, "data");
        const Json &collector = data ? *data : *json;
        const std::optional<std::string> surveyId = [&] {
            auto id = textMember(collector, "surveyId");
            return id ? id : textMember(collector, "survey_id");
        }();
        CollectorInfo info{
            .surveyId = surveyId.value_or(""),
            .uuid = textMember(collector, "uuid").value_or(""),
            .mongoId = textMember(collector, "_id").value_or(""),
        };
        TovuConsole::line("    Nick     : ", textMember(collector, "nick").value_or("-"));
        TovuConsole::line("    mongoId  : ", info.mongoId);
        TovuConsole::line("    uuid     : ", info.uuid);
        if (!surveyId) {
            TovuConsole::line("    ❌ surveyId not found — keys: ", keysOf(collector));
            return fail(completion, "surveyId not found in collector response");
        }
        TovuConsole::line("    ✅ surveyId: ", info.surveyId);
        completion(std::move(info));
    });
}

void TovuNetworkService::fetchSurvey(std::string surveyId, std::function<void(TovuResult<TovuSurvey>)> completion)
{
    if (!d->bearerToken)
        return fail(completion, "Bearer token missing. verifyApiKey() must succeed first.");
    const std::string urlText = d->apiBaseURL() + "/v3/survey-management/surveys/" + surveyId;
    const std::optional<QUrl> url = TovuReply::validUrl(urlText);
    if (!url)
        return fail(completion, "Invalid survey URL: " + urlText);

    TovuConsole::separator();
    TovuLog::print(">>> Tovu SDK [Step 2/3] Fetch Survey");
    TovuConsole::line("    URL      : ", urlText);
    TovuConsole::line("    surveyId : ", surveyId);

    TovuNetworkServicePrivate::Headers headers;
    d->addBearer(headers);
    d->send("GET", *url, headers, {}, [completion = std::move(completion)](TovuResult<TovuHttpReply> result) {
        const TovuHttpReply *reply = successfulReply(result, surveyLabels, completion);
        if (!reply)
            return;
        const TovuResult<TovuAPIMainResponse> document = tovuDecode<TovuAPIMainResponse>(textOf(reply->body));
        if (!document) {
            TovuConsole::line("    ❌ Decoding error: ", document.error().localizedDescription());
            return completion(std::unexpected(document.error()));
        }
        TovuSurvey survey = document->data.toNativeSurvey();
        TovuConsole::line("    ✅ Survey loaded: ", survey.name);
        TovuConsole::separator();
        completion(std::move(survey));
    });
}

void TovuNetworkService::submitResponse(std::string surveyId, TovuFeedbackRequest request,
                                        std::function<void(TovuResult<void>)> completion)
{
    const std::string urlText
        = d->feedbackBaseURL() + "/v3/survey-participation/" + surveyId + "/response/create-response";
    const std::optional<QUrl> url = TovuReply::validUrl(urlText);
    if (!url)
        return fail(completion, "Invalid Feedback API URL: " + urlText);

    const TovuFeedbackResponseItem *first = request.responses.empty() ? nullptr : &request.responses.front();
    TovuConsole::separator();
    TovuLog::print(">>> Tovu SDK [Step 3/3] Submit Response (Feedback API)");
    TovuConsole::line("    URL          : ", urlText);
    TovuConsole::line("    surveyId     : ", surveyId);
    TovuConsole::line("    collector_id : ", request.collector_id);
    TovuConsole::line("    status       : ", first ? first->response_status : "-");
    TovuConsole::line("    questions    : ", std::to_string(first ? first->questions.size() : 0));

    const TovuResult<std::string> payload = tovuEncode(request);
    if (!payload)
        return completion(std::unexpected(payload.error()));
    TovuConsole::line("    Payload      : ", *payload);

    TovuNetworkServicePrivate::Headers headers;
    d->addBearer(headers);
    d->send("POST", *url, headers, QByteArray::fromStdString(*payload),
            [completion = std::move(completion)](TovuResult<TovuHttpReply> result) {
                if (!successfulReply(result, submitLabels, completion))
                    return;
                // An empty 2xx answer is a success too.
                TovuLog::print("    ✅ Response submitted successfully");
                TovuConsole::separator();
                completion({});
            });
}

void TovuNetworkService::fetchLowestResponseSurveyId(std::vector<std::string> surveyIds,
                                                     std::function<void(TovuResult<std::string>)> completion)
{
    const std::string urlText = d->apiBaseURL() + "/v3/survey-management/surveys/responses/response-count";
    const std::optional<QUrl> url = TovuReply::validUrl(urlText);
    if (!url)
        return fail(completion, "Invalid URL: " + urlText);

    TovuConsole::separator();
    TovuConsole::line(">>> Tovu SDK [Lowest Response] URL: ", urlText);
    TovuConsole::line("    surveyUUIDs: ", printedList(surveyIds));

    const TovuResult<std::string> body = tovuEncode(LowestResponseRequest{std::move(surveyIds)});
    if (!body)
        return completion(std::unexpected(body.error()));

    TovuNetworkServicePrivate::Headers headers;
    d->addBearer(headers);
    d->send("POST", *url, headers, QByteArray::fromStdString(*body),
            [completion = std::move(completion)](TovuResult<TovuHttpReply> result) {
                const TovuHttpReply *reply = successfulReply(result, lowestLabels, completion);
                if (!reply)
                    return;
                const TovuResult<LowestResponseAnswer> answer = tovuDecode<LowestResponseAnswer>(textOf(reply->body));
                if (!answer) {
                    TovuConsole::line("    ❌ Decode error: ", answer.error().localizedDescription());
                    return completion(std::unexpected(answer.error()));
                }
                // The flag "success" and the text "message" are not consulted.
                std::optional<std::string> surveyId;
                if (answer->data)
                    surveyId = answer->data->surveyUUID ? answer->data->surveyUUID : answer->data->surveyId;
                if (!surveyId)
                    return fail(completion, "surveyUUID not found in response");
                TovuConsole::line("    ✅ Lowest response surveyId: ", *surveyId);
                TovuConsole::separator();
                completion(std::move(*surveyId));
            });
}
