#include "TovuDevJson.h"

namespace {

// Counts brackets outside strings; enough to keep the recursive parser safe.
bool nestsDeeperThan(std::string_view text, std::size_t limit)
{
    std::size_t depth = 0;
    bool inString = false;
    bool escaped = false;
    for (const char c : text) {
        if (inString) {
            if (escaped)
                escaped = false;
            else if (c == '\\')
                escaped = true;
            else if (c == '"')
                inString = false;
            continue;
        }
        if (c == '"') {
            inString = true;
        } else if (c == '[' || c == '{') {
            if (++depth > limit)
                return true;
        } else if ((c == ']' || c == '}') && depth > 0) {
            --depth;
        }
    }
    return false;
}

} // namespace

std::expected<TovuDevJson::Json, std::string> TovuDevJson::parse(std::string_view text)
{
    if (text.find_first_not_of(" \t\r\n") == std::string_view::npos)
        return std::unexpected(std::string("invalid JSON: empty"));
    if (nestsDeeperThan(text, maxDepth))
        return std::unexpected("invalid JSON: nested deeper than " + std::to_string(maxDepth) + " levels");
    try {
        return Json::parse(text);
    } catch (const nlohmann::json::exception &error) {
        std::string_view what = error.what();
        // "[json.exception.parse_error.101] parse error at line 1, …" without the tag.
        if (const auto close = what.find("] "); what.starts_with("[json.exception.") && close != what.npos)
            what.remove_prefix(close + 2);
        return std::unexpected("invalid JSON: " + std::string(what));
    }
}

std::string_view TovuDevJson::kindName(const Json &value)
{
    switch (value.type()) {
    case Json::value_t::null:
        return "null";
    case Json::value_t::boolean:
        return "boolean";
    case Json::value_t::number_integer:
    case Json::value_t::number_unsigned:
        return "integer";
    case Json::value_t::number_float:
        return "number";
    case Json::value_t::string:
        return "string";
    case Json::value_t::array:
        return "array";
    case Json::value_t::object:
        return "object";
    case Json::value_t::binary:
    case Json::value_t::discarded:
        break;
    }
    return "value";
}

std::string TovuDevJson::memberPath(std::string_view base, std::string_view name)
{
    if (base.empty())
        return std::string(name);
    return std::string(base) + "." + std::string(name);
}

std::string TovuDevJson::indexPath(std::string_view base, std::size_t index)
{
    return std::string(base) + "[" + std::to_string(index) + "]";
}
