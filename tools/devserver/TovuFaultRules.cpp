#include "TovuFaultRules.h"

#include <algorithm>
#include <cctype>
#include <string_view>

namespace {

using Json = TovuDevJson::Json;

// Long enough for any time-out a client uses, short enough that a typo does
// not hang a test run for hours.
constexpr std::int64_t maxDelayMs = 10 * 60 * 1000;

std::string kindMismatch(std::string_view name, std::string_view expected, const Json &found)
{
    return std::string(name) + ": expected " + std::string(expected) + ", found "
        + std::string(TovuDevJson::kindName(found));
}

} // namespace

std::expected<TovuFaultRule, std::string> TovuFaultRules::parse(const Json &json)
{
    if (!json.is_object())
        return std::unexpected(kindMismatch("body", "object", json));
    for (const auto &[name, value] : json.items()) {
        static constexpr std::string_view known[]
            = {"method", "pathPrefix", "status", "body", "delayMs", "drop", "count"};
        if (std::ranges::find(known, std::string_view(name)) == std::end(known))
            return std::unexpected(name + ": unknown member");
    }

    TovuFaultRule rule;
    const auto pathPrefix = json.find("pathPrefix");
    if (pathPrefix == json.end())
        return std::unexpected(std::string("pathPrefix: missing"));
    if (!pathPrefix->is_string())
        return std::unexpected(kindMismatch("pathPrefix", "string", *pathPrefix));
    rule.pathPrefix = pathPrefix->get<std::string>();
    if (!rule.pathPrefix.starts_with('/'))
        return std::unexpected(std::string("pathPrefix: must start with \"/\""));

    if (const auto method = json.find("method"); method != json.end()) {
        if (!method->is_string() || method->get_ref<const std::string &>().empty())
            return std::unexpected(kindMismatch("method", "non-empty string", *method));
        std::string upper = method->get<std::string>();
        std::ranges::transform(upper, upper.begin(),
                               [](unsigned char c) { return static_cast<char>(std::toupper(c)); });
        rule.method = upper;
    }
    if (const auto status = json.find("status"); status != json.end()) {
        if (!status->is_number_integer())
            return std::unexpected(kindMismatch("status", "integer", *status));
        const auto value = status->get<std::int64_t>();
        if (value < 200 || value > 599)
            return std::unexpected(std::string("status: must be from 200 to 599"));
        rule.status = static_cast<int>(value);
    }
    if (const auto body = json.find("body"); body != json.end()) {
        if (!body->is_string())
            return std::unexpected(kindMismatch("body", "string", *body));
        rule.body = body->get<std::string>();
    }
    if (const auto delay = json.find("delayMs"); delay != json.end()) {
        if (!delay->is_number_integer())
            return std::unexpected(kindMismatch("delayMs", "integer", *delay));
        const auto value = delay->get<std::int64_t>();
        if (value < 0 || value > maxDelayMs)
            return std::unexpected("delayMs: must be from 0 to " + std::to_string(maxDelayMs));
        rule.delay = std::chrono::milliseconds(value);
    }
    if (const auto drop = json.find("drop"); drop != json.end()) {
        if (!drop->is_boolean())
            return std::unexpected(kindMismatch("drop", "boolean", *drop));
        rule.drop = drop->get<bool>();
    }
    if (const auto count = json.find("count"); count != json.end()) {
        if (!count->is_number_integer())
            return std::unexpected(kindMismatch("count", "integer", *count));
        rule.count = count->get<std::int64_t>();
        if (rule.count < 1)
            return std::unexpected(std::string("count: must be at least 1"));
    }
    return rule;
}

Json TovuFaultRules::toJson(const TovuFaultRule &rule)
{
    Json json = Json::object();
    if (rule.method)
        json["method"] = *rule.method;
    json["pathPrefix"] = rule.pathPrefix;
    if (rule.status)
        json["status"] = *rule.status;
    if (!rule.body.empty())
        json["body"] = rule.body;
    json["delayMs"] = rule.delay.count();
    json["drop"] = rule.drop;
    json["count"] = rule.count;
    return json;
}

void TovuFaultRules::add(TovuFaultRule rule)
{
    const std::lock_guard lock(m_mutex);
    m_rules.push_back(std::move(rule));
}

std::size_t TovuFaultRules::clear()
{
    const std::lock_guard lock(m_mutex);
    const std::size_t cleared = m_rules.size();
    m_rules.clear();
    return cleared;
}

std::optional<TovuFaultRule> TovuFaultRules::take(const std::string &method, const std::string &path)
{
    const std::lock_guard lock(m_mutex);
    const auto matches = [&](const TovuFaultRule &rule) {
        return (!rule.method || *rule.method == method) && path.starts_with(rule.pathPrefix);
    };
    const auto found = std::ranges::find_if(m_rules, matches);
    if (found == m_rules.end())
        return std::nullopt;
    TovuFaultRule used = *found;
    if (--found->count == 0)
        m_rules.erase(found);
    return used;
}

std::vector<TovuFaultRule> TovuFaultRules::rules() const
{
    const std::lock_guard lock(m_mutex);
    return m_rules;
}
