#include "TovuDevConfig.h"

#include "TovuDevJson.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <fstream>
#include <iterator>
#include <set>
#include <utility>

namespace {

using Json = TovuDevJson::Json;

constexpr std::array<std::pair<TovuTokenShape, std::string_view>, 5> shapeNames{{
    {TovuTokenShape::accessToken, "access_token"},
    {TovuTokenShape::token, "token"},
    {TovuTokenShape::dataToken, "data.token"},
    {TovuTokenShape::bearerToken, "bearerToken"},
    {TovuTokenShape::dataAccessToken, "data.access_token"},
}};

// A stable 24-digit hex id that looks like the backend's document ids.
std::string mongoIdFor(std::string_view text)
{
    std::uint64_t hash = 14695981039346656037ull;
    std::string id;
    for (int round = 0; id.size() < 24; ++round) {
        for (const char c : text) {
            hash ^= static_cast<unsigned char>(c);
            hash *= 1099511628211ull;
        }
        hash ^= static_cast<std::uint64_t>(round);
        static constexpr char digits[] = "0123456789abcdef";
        for (int i = 0; i < 8 && id.size() < 24; ++i)
            id += digits[(hash >> (4 * i)) & 0xF];
    }
    return id;
}

// Reads one member of a config entry; the error is "<path>: <what>".
std::expected<std::optional<std::string>, std::string> textMember(const Json &entry, const std::string &path,
                                                                  std::string_view name, bool required)
{
    const auto found = entry.find(name);
    const std::string memberPath = TovuDevJson::memberPath(path, name);
    if (found == entry.end()) {
        if (required)
            return std::unexpected(memberPath + ": missing");
        return std::nullopt;
    }
    if (!found->is_string() || found->get_ref<const std::string &>().empty()) {
        return std::unexpected(
            memberPath + ": expected non-empty string, found "
            + (found->is_string() ? std::string("empty string") : std::string(TovuDevJson::kindName(*found))));
    }
    return found->get<std::string>();
}

std::expected<void, std::string> onlyKnownMembers(const Json &entry, const std::string &path,
                                                  std::initializer_list<std::string_view> known)
{
    for (const auto &[name, value] : entry.items()) {
        if (std::ranges::find(known, std::string_view(name)) == known.end())
            return std::unexpected(TovuDevJson::memberPath(path, name) + ": unknown member");
    }
    return {};
}

std::expected<std::vector<TovuDevKey>, std::string> readKeys(const Json &list)
{
    if (!list.is_array())
        return std::unexpected("keys: expected array, found " + std::string(TovuDevJson::kindName(list)));
    std::vector<TovuDevKey> keys;
    for (std::size_t i = 0; i < list.size(); ++i) {
        const std::string path = TovuDevJson::indexPath("keys", i);
        const Json &entry = list[i];
        if (!entry.is_object())
            return std::unexpected(path + ": expected object, found " + std::string(TovuDevJson::kindName(entry)));
        if (auto known = onlyKnownMembers(entry, path, {"key", "token", "tokenShape"}); !known)
            return std::unexpected(known.error());
        const auto key = textMember(entry, path, "key", true);
        if (!key)
            return std::unexpected(key.error());
        const auto token = textMember(entry, path, "token", false);
        if (!token)
            return std::unexpected(token.error());
        const auto shape = textMember(entry, path, "tokenShape", false);
        if (!shape)
            return std::unexpected(shape.error());
        const std::string defaultToken
            = **key == TovuDevConfig::demoKey ? std::string(TovuDevConfig::demoToken) : **key + "-token";
        TovuDevKey devKey{**key, token->value_or(defaultToken), TovuTokenShape::dataToken};
        if (*shape) {
            const auto parsed = TovuDevConfig::shapeFromName(**shape);
            if (!parsed) {
                std::string names;
                for (const auto &[value, name] : shapeNames)
                    names += (names.empty() ? "" : ", ") + std::string(name);
                return std::unexpected(path + ".tokenShape: unknown shape \"" + **shape + "\" (one of " + names + ")");
            }
            devKey.tokenShape = *parsed;
        }
        if (std::ranges::find(keys, devKey.key, &TovuDevKey::key) != keys.end())
            return std::unexpected(path + ".key: \"" + devKey.key + "\" is listed twice");
        keys.push_back(std::move(devKey));
    }
    return keys;
}

std::expected<std::vector<TovuDevCollector>, std::string> readCollectors(const Json &list)
{
    if (!list.is_array())
        return std::unexpected("collectors: expected array, found " + std::string(TovuDevJson::kindName(list)));
    std::vector<TovuDevCollector> collectors;
    for (std::size_t i = 0; i < list.size(); ++i) {
        const std::string path = TovuDevJson::indexPath("collectors", i);
        const Json &entry = list[i];
        if (!entry.is_object())
            return std::unexpected(path + ": expected object, found " + std::string(TovuDevJson::kindName(entry)));
        if (auto known = onlyKnownMembers(entry, path, {"id", "surveyId", "nick", "mongoId"}); !known)
            return std::unexpected(known.error());
        const auto id = textMember(entry, path, "id", true);
        if (!id)
            return std::unexpected(id.error());
        const auto surveyId = textMember(entry, path, "surveyId", true);
        if (!surveyId)
            return std::unexpected(surveyId.error());
        const auto nick = textMember(entry, path, "nick", false);
        if (!nick)
            return std::unexpected(nick.error());
        const auto mongoId = textMember(entry, path, "mongoId", false);
        if (!mongoId)
            return std::unexpected(mongoId.error());
        if (std::ranges::find(collectors, **id, &TovuDevCollector::id) != collectors.end())
            return std::unexpected(path + ".id: \"" + **id + "\" is listed twice");
        collectors.push_back(
            {**id, **surveyId, nick->value_or("Collector " + **id), mongoId->value_or(mongoIdFor(**id))});
    }
    return collectors;
}

} // namespace

TovuDevConfig TovuDevConfig::defaults(const TovuSurveyCatalog &catalog)
{
    TovuDevConfig config;
    config.m_keys.push_back({std::string(demoKey), std::string(demoToken), TovuTokenShape::dataToken});
    for (const TovuSurveyDocument &document : catalog.documents()) {
        const std::string id = "collector-" + document.stem;
        const std::string title = document.displayTitle.empty() ? document.stem : document.displayTitle;
        config.m_collectors.push_back({id, document.uuid, title + " (dev link)", mongoIdFor(id)});
    }
    return config;
}

std::expected<TovuDevConfig, std::string> TovuDevConfig::load(const std::filesystem::path &file,
                                                              const TovuSurveyCatalog &catalog)
{
    const auto fail = [&file](const std::string &reason) {
        return std::unexpected(file.string() + ": " + reason);
    };
    std::ifstream in(file, std::ios::binary);
    if (!in)
        return fail("cannot be read");
    const std::string text{std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
    const auto json = TovuDevJson::parse(text);
    if (!json)
        return fail(json.error());
    if (!json->is_object())
        return fail("expected object, found " + std::string(TovuDevJson::kindName(*json)));
    if (auto known = onlyKnownMembers(*json, "", {"keys", "collectors"}); !known)
        return fail(known.error());

    TovuDevConfig config = defaults(catalog);
    if (const auto keys = json->find("keys"); keys != json->end()) {
        auto read = readKeys(*keys);
        if (!read)
            return fail(read.error());
        config.m_keys = std::move(*read);
    }
    if (const auto collectors = json->find("collectors"); collectors != json->end()) {
        auto read = readCollectors(*collectors);
        if (!read)
            return fail(read.error());
        config.m_collectors = std::move(*read);
    }
    return config;
}

std::string_view TovuDevConfig::shapeName(TovuTokenShape shape)
{
    for (const auto &[value, name] : shapeNames) {
        if (value == shape)
            return name;
    }
    return {};
}

std::optional<TovuTokenShape> TovuDevConfig::shapeFromName(std::string_view name)
{
    for (const auto &[value, shapeName] : shapeNames) {
        if (shapeName == name)
            return value;
    }
    return std::nullopt;
}

const TovuDevKey *TovuDevConfig::findKey(std::string_view key) const
{
    const auto found = std::ranges::find(m_keys, key, &TovuDevKey::key);
    return found == m_keys.end() ? nullptr : &*found;
}

const TovuDevCollector *TovuDevConfig::findCollector(std::string_view id) const
{
    const auto found = std::ranges::find(m_collectors, id, &TovuDevCollector::id);
    return found == m_collectors.end() ? nullptr : &*found;
}

bool TovuDevConfig::isIssuedToken(std::string_view token) const
{
    return std::ranges::any_of(m_keys, [token](const TovuDevKey &key) { return key.token == token; });
}
