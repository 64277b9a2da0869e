#pragma once

#include <cstdint>
#include <expected>
#include <filesystem>
#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <vector>

struct sqlite3;

/// One submitted response as it was received.
struct TovuStoredResponse {
    std::int64_t id = 0;
    std::string surveyId;
    std::string receivedAt; ///< ISO 8601, UTC, whole seconds
    std::string payload; ///< the request body, byte for byte
};

/// The responses the server accepted, in one SQLite file. Safe to use from
/// the server's request threads at once.
class TovuResponseStore
{
public:
    /// Opens (or creates) the file; the error names the file and the reason.
    static std::expected<std::unique_ptr<TovuResponseStore>, std::string> open(const std::filesystem::path &file);

    ~TovuResponseStore();
    TovuResponseStore(const TovuResponseStore &) = delete;
    TovuResponseStore &operator=(const TovuResponseStore &) = delete;

    /// Stores one response and returns its id, or the database's error.
    std::expected<std::int64_t, std::string> add(const std::string &surveyId, const std::string &payload);
    /// Oldest first; only that survey's when surveyId is given.
    std::expected<std::vector<TovuStoredResponse>, std::string> list(const std::optional<std::string> &surveyId) const;
    std::expected<std::int64_t, std::string> count(const std::string &surveyId) const;

private:
    explicit TovuResponseStore(sqlite3 *db);

    sqlite3 *m_db;
    mutable std::mutex m_mutex;
};
