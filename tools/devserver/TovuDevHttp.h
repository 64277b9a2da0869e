#pragma once

#include <algorithm>
#include <cctype>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

// One HTTP exchange as the router sees it, free of the HTTP library so the
// routes stay plain functions of their input.

struct TovuDevRequest {
    std::string method; ///< "GET", "POST", …
    std::string path; ///< decoded, without the query
    std::multimap<std::string, std::string> query;
    std::vector<std::pair<std::string, std::string>> headers;
    std::string body;

    /// The first header of that name, compared without regard to case.
    std::optional<std::string> header(std::string_view name) const
    {
        const auto sameName = [name](const std::pair<std::string, std::string> &h) {
            return std::ranges::equal(h.first, name, [](char a, char b) {
                return std::tolower(static_cast<unsigned char>(a)) == std::tolower(static_cast<unsigned char>(b));
            });
        };
        const auto found = std::ranges::find_if(headers, sameName);
        if (found == headers.end())
            return std::nullopt;
        return found->second;
    }

    std::optional<std::string> queryValue(const std::string &name) const
    {
        const auto found = query.find(name);
        if (found == query.end())
            return std::nullopt;
        return found->second;
    }
};

struct TovuDevReply {
    int status = 200;
    std::string contentType = "application/json";
    std::string body;
};
