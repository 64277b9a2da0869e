#include "TovuDevJson.h"

#include <tovukit_io/model/TovuJsonCoding.h>

std::expected<TovuDevJson::Json, std::string> TovuDevJson::parse(std::string_view text)
{
    if (text.find_first_not_of(" \t\r\n") == std::string_view::npos)
        return std::unexpected(std::string("invalid JSON: empty"));
    // The library's own parsing: the same limits and messages as the client's.
    try {
        return tovu::json::parse(text);
    } catch (const TovuCodingError &error) {
        return std::unexpected(std::string(error.what()));
    }
}

std::string_view TovuDevJson::kindName(const Json &value)
{
    return tovu::json::kindName(value);
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
