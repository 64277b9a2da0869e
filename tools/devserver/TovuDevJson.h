#pragma once

#include <nlohmann/json.hpp>

#include <cstddef>
#include <expected>
#include <string>
#include <string_view>

/// JSON helpers shared by the routes and the config loader. Member order is
/// kept, so what the server stores and lists reads as the client wrote it.
class TovuDevJson
{
public:
    using Json = nlohmann::ordered_json;

    /// Parses a request body or a file as the library does (64 levels of
    /// nesting at most); the error reads "invalid JSON: …" or names the limit.
    static std::expected<Json, std::string> parse(std::string_view text);

    /// "string", "integer", "object", … as the error messages name kinds.
    static std::string_view kindName(const Json &value);

    /// `base` + ".name", or just "name" at the top.
    static std::string memberPath(std::string_view base, std::string_view name);
    static std::string indexPath(std::string_view base, std::size_t index);

    TovuDevJson() = delete;
};
