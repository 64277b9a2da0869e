#include "TovuDevRouter.h"

#include "TovuDevJson.h"
#include "TovuPayloadValidator.h"
#include "TovuWebPage.h"

#include <tovukit_io/model/TovuDecode.h>
#include <tovukit_io/network/TovuAPISurveyData.h>

#include <functional>
#include <optional>
#include <string_view>
#include <utility>
#include <vector>

namespace {

using Json = TovuDevJson::Json;

TovuDevReply json(int status, const Json &value)
{
    // Replace rather than throw on bytes that are not UTF-8 (they can only
    // come from an error message quoting the client's input).
    return {status, "application/json", value.dump(-1, ' ', false, Json::error_handler_t::replace)};
}

TovuDevReply message(int status, std::string_view text)
{
    Json body = Json::object();
    body["message"] = text;
    return json(status, body);
}

TovuDevReply detail(int status, std::string_view text)
{
    Json body = Json::object();
    body["data"]["errors"]["detail"] = text;
    return json(status, body);
}

TovuDevReply html(int status, std::string page)
{
    return {status, "text/html; charset=utf-8", std::move(page)};
}

// The one path segment between prefix and suffix, if the path has that form.
std::optional<std::string> segment(const std::string &path, std::string_view prefix, std::string_view suffix = {})
{
    if (path.size() <= prefix.size() + suffix.size() || !path.starts_with(prefix) || !path.ends_with(suffix))
        return std::nullopt;
    std::string middle = path.substr(prefix.size(), path.size() - prefix.size() - suffix.size());
    if (middle.find('/') != std::string::npos)
        return std::nullopt;
    return middle;
}

} // namespace

TovuDevRouter::TovuDevRouter(const TovuSurveyCatalog &catalog, const TovuDevConfig &config, TovuResponseStore &store,
                             TovuFaultRules &faults, std::string baseUrl)
    : m_catalog(catalog)
    , m_config(config)
    , m_store(store)
    , m_faults(faults)
    , m_baseUrl(std::move(baseUrl))
{ }

TovuDevReply TovuDevRouter::handle(const TovuDevRequest &request) const
{
    using Handler = std::function<TovuDevReply(const std::string &parameter)>;
    struct Route {
        std::string_view method;
        std::optional<std::string> parameter; ///< set when the path matches
        Handler handler;
    };
    const std::string &path = request.path;
    const auto exact = [&path](std::string_view expected) {
        return path == expected ? std::optional<std::string>("") : std::nullopt;
    };
    const std::vector<Route> routes = {
        {"GET", exact("/api/v1/api-key/verify"),
         [&](const std::string &) {
             return verify(request);
         }},
        {"GET", segment(path, "/v3/collectors/collect/"),
         [&](const std::string &id) {
             return collector(id);
         }},
        {"POST", exact("/v3/survey-management/surveys/responses/response-count"),
         [&](const std::string &) {
             return responseCount(request);
         }},
        {"GET", segment(path, "/v3/survey-management/surveys/"),
         [&](const std::string &id) {
             return survey(request, id);
         }},
        {"POST", segment(path, "/v3/survey-participation/", "/response/create-response"),
         [&](const std::string &id) {
             return createResponse(request, id);
         }},
        {"GET", exact("/dev/responses"),
         [&](const std::string &) {
             return listResponses(request);
         }},
        {"POST", exact("/dev/faults"),
         [&](const std::string &) {
             return addFault(request);
         }},
        {"GET", exact("/dev/faults"),
         [&](const std::string &) {
             return listFaults();
         }},
        {"DELETE", exact("/dev/faults"),
         [&](const std::string &) {
             return clearFaults();
         }},
        {"GET", segment(path, "/web/"),
         [&](const std::string &id) {
             return webPage(id);
         }},
        {"GET", exact("/"),
         [&](const std::string &) {
             return index();
         }},
    };

    bool pathKnown = false;
    for (const Route &route : routes) {
        if (!route.parameter)
            continue;
        pathKnown = true;
        if (route.method == request.method)
            return route.handler(*route.parameter);
    }
    if (pathKnown)
        return message(405, "Method not allowed");
    return message(404, "Not found");
}

bool TovuDevRouter::hasIssuedBearer(const TovuDevRequest &request) const
{
    const std::optional<std::string> authorization = request.header("Authorization");
    static constexpr std::string_view scheme = "Bearer ";
    return authorization && authorization->starts_with(scheme)
        && m_config.isIssuedToken(std::string_view(*authorization).substr(scheme.size()));
}

TovuDevReply TovuDevRouter::verify(const TovuDevRequest &request) const
{
    const std::optional<std::string> apiKey = request.header("x-api-key");
    const TovuDevKey *key = apiKey ? m_config.findKey(*apiKey) : nullptr;
    if (!key)
        return message(401, "Invalid API key");
    const std::optional<std::string> zone = request.queryValue("zone");
    if (!zone || zone->empty())
        return message(400, "zone: missing query parameter");

    Json body = Json::object();
    switch (key->tokenShape) {
    case TovuTokenShape::accessToken:
        body["access_token"] = key->token;
        break;
    case TovuTokenShape::token:
        body["token"] = key->token;
        break;
    case TovuTokenShape::dataToken:
        body["data"]["token"] = key->token;
        break;
    case TovuTokenShape::bearerToken:
        body["bearerToken"] = key->token;
        break;
    case TovuTokenShape::dataAccessToken:
        body["data"]["access_token"] = key->token;
        break;
    }
    return json(200, body);
}

TovuDevReply TovuDevRouter::collector(const std::string &id) const
{
    const TovuDevCollector *collector = m_config.findCollector(id);
    if (!collector)
        return detail(404, "Collector not found");
    Json data = Json::object();
    data["_id"] = collector->mongoId;
    data["uuid"] = collector->id;
    data["surveyId"] = collector->surveyId;
    data["nick"] = collector->nick;
    Json body = Json::object();
    body["data"] = std::move(data);
    return json(200, body);
}

TovuDevReply TovuDevRouter::survey(const TovuDevRequest &request, const std::string &id) const
{
    if (!hasIssuedBearer(request))
        return message(401, "Unauthorized");
    const TovuSurveyDocument *document = m_catalog.find(id);
    if (!document)
        return detail(404, "Survey not found");
    return {200, "application/json", document->text};
}

TovuDevReply TovuDevRouter::responseCount(const TovuDevRequest &request) const
{
    const auto body = TovuDevJson::parse(request.body);
    if (!body)
        return message(400, "body: " + body.error());
    if (!body->is_object())
        return message(400, "body: expected object, found " + std::string(TovuDevJson::kindName(*body)));
    const auto ids = body->find("surveyUUIDs");
    if (ids == body->end())
        return message(400, "surveyUUIDs: missing");
    if (!ids->is_array())
        return message(400, "surveyUUIDs: expected array, found " + std::string(TovuDevJson::kindName(*ids)));
    if (ids->empty())
        return message(400, "surveyUUIDs: expected at least one survey id");

    std::optional<std::pair<std::string, std::int64_t>> fewest;
    for (std::size_t i = 0; i < ids->size(); ++i) {
        const Json &id = (*ids)[i];
        if (!id.is_string()) {
            return message(400,
                           TovuDevJson::indexPath("surveyUUIDs", i) + ": expected string, found "
                               + std::string(TovuDevJson::kindName(id)));
        }
        const auto count = m_store.count(id.get<std::string>());
        if (!count)
            return message(500, "response store: " + count.error());
        // Strictly fewer, so a tie goes to the survey listed first.
        if (!fewest || *count < fewest->second)
            fewest = {id.get<std::string>(), *count};
    }

    Json data = Json::object();
    data["surveyUUID"] = fewest->first;
    data["surveyId"] = fewest->first;
    data["responseCount"] = fewest->second;
    data["surveyURL"] = m_baseUrl + "/web/" + fewest->first;
    Json reply = Json::object();
    reply["success"] = true;
    reply["data"] = std::move(data);
    return json(200, reply);
}

TovuDevReply TovuDevRouter::createResponse(const TovuDevRequest &request, const std::string &surveyId) const
{
    if (!hasIssuedBearer(request))
        return message(401, "Unauthorized");
    const auto payload = TovuDevJson::parse(request.body);
    if (!payload)
        return message(400, "body: " + payload.error());
    if (const std::optional<std::string> problem = TovuPayloadValidator::check(*payload))
        return message(400, *problem);
    const auto stored = m_store.add(surveyId, request.body);
    if (!stored)
        return message(500, "response store: " + stored.error());
    return message(201, "Response created");
}

TovuDevReply TovuDevRouter::listResponses(const TovuDevRequest &request) const
{
    const auto responses = m_store.list(request.queryValue("surveyId"));
    if (!responses)
        return message(500, "response store: " + responses.error());
    Json list = Json::array();
    for (const TovuStoredResponse &response : *responses) {
        Json entry = Json::object();
        entry["id"] = response.id;
        entry["surveyId"] = response.surveyId;
        entry["receivedAt"] = response.receivedAt;
        auto payload = TovuDevJson::parse(response.payload);
        entry["payload"] = payload ? std::move(*payload) : Json(response.payload);
        list.push_back(std::move(entry));
    }
    return json(200, list);
}

TovuDevReply TovuDevRouter::addFault(const TovuDevRequest &request) const
{
    const auto body = TovuDevJson::parse(request.body);
    if (!body)
        return message(400, "body: " + body.error());
    auto rule = TovuFaultRules::parse(*body);
    if (!rule)
        return message(400, rule.error());
    Json reply = Json::object();
    reply["message"] = "Fault rule added";
    reply["rule"] = TovuFaultRules::toJson(*rule);
    m_faults.add(std::move(*rule));
    return json(201, reply);
}

TovuDevReply TovuDevRouter::listFaults() const
{
    Json list = Json::array();
    for (const TovuFaultRule &rule : m_faults.rules())
        list.push_back(TovuFaultRules::toJson(rule));
    return json(200, list);
}

TovuDevReply TovuDevRouter::clearFaults() const
{
    Json reply = Json::object();
    reply["message"] = "Fault rules cleared";
    reply["cleared"] = m_faults.clear();
    return json(200, reply);
}

TovuDevReply TovuDevRouter::webPage(const std::string &surveyId) const
{
    const TovuSurveyDocument *document = m_catalog.find(surveyId);
    if (!document)
        return html(404, TovuWebPage::notFound(surveyId));
    const TovuResult<TovuAPIMainResponse> decoded = tovuDecode<TovuAPIMainResponse>(document->text);
    if (!decoded)
        return html(500, TovuWebPage::unreadable(surveyId, decoded.error().localizedDescription()));
    return html(200, TovuWebPage::render(decoded->data.toNativeSurvey()));
}

TovuDevReply TovuDevRouter::index() const
{
    std::string body = "<!DOCTYPE html>\n<html lang=\"en\">\n<head>\n<meta charset=\"utf-8\">\n"
                       "<title>tovu-devserver</title>\n</head>\n<body>\n<h1>tovu-devserver</h1>\n<ul>\n";
    for (const TovuSurveyDocument &document : m_catalog.documents()) {
        body += "<li><a href=\"/web/" + TovuWebPage::escape(document.uuid) + "\">"
            + TovuWebPage::escape(document.displayTitle.empty() ? document.uuid : document.displayTitle) + "</a> <code>"
            + TovuWebPage::escape(document.uuid) + "</code>";
        for (const TovuDevCollector &collector : m_config.collectors()) {
            if (collector.surveyId == document.uuid)
                body += " collector <code>" + TovuWebPage::escape(collector.id) + "</code>";
        }
        body += "</li>\n";
    }
    body += "</ul>\n</body>\n</html>\n";
    return html(200, std::move(body));
}
