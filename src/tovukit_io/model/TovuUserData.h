#pragma once

#include <map>
#include <optional>
#include <string>

/// Respondent data the host hands to the manager. It reaches the response as
/// custom variables and has no JSON form of its own.
struct TovuUserData {
    std::optional<std::string> name;
    std::optional<std::string> email;
    std::optional<std::string> phone;
    std::optional<std::string> uniqueId;
    std::optional<std::string> country;
    std::optional<std::string> city;
    std::optional<std::string> region;
    std::optional<std::map<std::string, std::string>> eData; ///< any further key/value pairs

    friend bool operator==(const TovuUserData &, const TovuUserData &) = default;
};
