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

    /// Deeper documents are refused before parsing: the parser recurses.
    static constexpr std::size_t maxDepth = 64;

    /// Parses a request body or a file; the error reads "invalid JSON: …".
    static std::expected<Json, std::string> parse(std::string_view text);

    /// "string", "integer", "object", … as the error messages name kinds.
    static std::string_view kindName(const Json &value);

    /// `base` + ".name", or just "name" at the top.
    static std::string memberPath(std::string_view base, std::string_view name);
    static std::string indexPath(std::string_view base, std::size_t index);

    TovuDevJson() = delete;
};
