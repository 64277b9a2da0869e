#pragma once

#include "TovuSurveyCatalog.h"

#include <expected>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// Where the verify call puts the token in its answer.
enum class TovuTokenShape {
    accessToken, ///< {"access_token": T}
    token, ///< {"token": T}
    dataToken, ///< {"data": {"token": T}}
    bearerToken, ///< {"bearerToken": T}
    dataAccessToken, ///< {"data": {"access_token": T}}
};

/// An API key the server accepts and the bearer token it issues for it.
struct TovuDevKey {
    std::string key;
    std::string token;
    TovuTokenShape tokenShape = TovuTokenShape::dataToken;
};

/// A collector: a link that leads to one survey.
struct TovuDevCollector {
    std::string id; ///< what the client asks for ("uuid" in the answer)
    std::string surveyId;
    std::string nick;
    std::string mongoId; ///< "_id" in the answer
};

/// Keys and collectors. Without a file: the key "tovu-demo-key" (token
/// "tovu-demo-token", shape data.token) and one collector per survey
/// document, "collector-" + the file's stem. A file replaces either list
/// when it has it (README.md shows the format).
class TovuDevConfig
{
public:
    static constexpr std::string_view demoKey = "tovu-demo-key";
    static constexpr std::string_view demoToken = "tovu-demo-token";

    static TovuDevConfig defaults(const TovuSurveyCatalog &catalog);
    /// The error names the file and the path of the bad value.
    static std::expected<TovuDevConfig, std::string> load(const std::filesystem::path &file,
                                                          const TovuSurveyCatalog &catalog);

    static std::string_view shapeName(TovuTokenShape shape);
    static std::optional<TovuTokenShape> shapeFromName(std::string_view name);

    const std::vector<TovuDevKey> &keys() const { return m_keys; }
    const std::vector<TovuDevCollector> &collectors() const { return m_collectors; }

    const TovuDevKey *findKey(std::string_view key) const;
    const TovuDevCollector *findCollector(std::string_view id) const;
    /// Whether verify hands this token out for one of the keys.
    bool isIssuedToken(std::string_view token) const;

private:
    std::vector<TovuDevKey> m_keys;
    std::vector<TovuDevCollector> m_collectors;
};
