#include "TovuResponseStore.h"

#include <sqlite3.h>

#include <chrono>
#include <ctime>
#include <memory>

namespace {

std::string nowIso8601()
{
    const std::time_t now = std::chrono::system_clock::to_time_t(std::chrono::system_clock::now());
    std::tm utc{};
    gmtime_r(&now, &utc);
    char text[32];
    std::strftime(text, sizeof text, "%Y-%m-%dT%H:%M:%SZ", &utc);
    return text;
}

struct StatementDeleter {
    void operator()(sqlite3_stmt *statement) const { sqlite3_finalize(statement); }
};
using Statement = std::unique_ptr<sqlite3_stmt, StatementDeleter>;

std::expected<Statement, std::string> prepare(sqlite3 *db, const char *sql)
{
    sqlite3_stmt *statement = nullptr;
    if (sqlite3_prepare_v2(db, sql, -1, &statement, nullptr) != SQLITE_OK)
        return std::unexpected(std::string(sqlite3_errmsg(db)));
    return Statement(statement);
}

bool bindText(sqlite3_stmt *statement, int index, const std::string &text)
{
    return sqlite3_bind_text64(statement, index, text.data(), text.size(), SQLITE_TRANSIENT, SQLITE_UTF8) == SQLITE_OK;
}

std::string columnText(sqlite3_stmt *statement, int column)
{
    const auto *text = sqlite3_column_text(statement, column);
    const int size = sqlite3_column_bytes(statement, column);
    if (!text || size <= 0)
        return {};
    return {reinterpret_cast<const char *>(text), static_cast<std::size_t>(size)};
}

} // namespace

std::expected<std::unique_ptr<TovuResponseStore>, std::string>
TovuResponseStore::open(const std::filesystem::path &file)
{
    sqlite3 *db = nullptr;
    const int opened
        = sqlite3_open_v2(file.c_str(), &db, SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE | SQLITE_OPEN_NOMUTEX, nullptr);
    if (opened != SQLITE_OK) {
        std::string reason = db ? sqlite3_errmsg(db) : sqlite3_errstr(opened);
        sqlite3_close(db);
        return std::unexpected(file.string() + ": " + reason);
    }
    std::unique_ptr<TovuResponseStore> store(new TovuResponseStore(db));
    static constexpr const char *schema = "PRAGMA journal_mode=WAL;"
                                          "CREATE TABLE IF NOT EXISTS responses("
                                          " id INTEGER PRIMARY KEY AUTOINCREMENT,"
                                          " survey_id TEXT NOT NULL,"
                                          " received_at TEXT NOT NULL,"
                                          " payload TEXT NOT NULL);"
                                          "CREATE INDEX IF NOT EXISTS responses_by_survey ON responses(survey_id);";
    char *error = nullptr;
    if (sqlite3_exec(db, schema, nullptr, nullptr, &error) != SQLITE_OK) {
        std::string reason = error ? error : "cannot create the table";
        sqlite3_free(error);
        return std::unexpected(file.string() + ": " + reason);
    }
    return store;
}

TovuResponseStore::TovuResponseStore(sqlite3 *db)
    : m_db(db)
{ }

TovuResponseStore::~TovuResponseStore()
{
    sqlite3_close(m_db);
}

std::expected<std::int64_t, std::string> TovuResponseStore::add(const std::string &surveyId, const std::string &payload)
{
    const std::lock_guard lock(m_mutex);
    auto statement = prepare(m_db, "INSERT INTO responses(survey_id, received_at, payload) VALUES(?, ?, ?)");
    if (!statement)
        return std::unexpected(statement.error());
    if (!bindText(statement->get(), 1, surveyId) || !bindText(statement->get(), 2, nowIso8601())
        || !bindText(statement->get(), 3, payload) || sqlite3_step(statement->get()) != SQLITE_DONE)
        return std::unexpected(std::string(sqlite3_errmsg(m_db)));
    return sqlite3_last_insert_rowid(m_db);
}

std::expected<std::vector<TovuStoredResponse>, std::string>
TovuResponseStore::list(const std::optional<std::string> &surveyId) const
{
    const std::lock_guard lock(m_mutex);
    auto statement = prepare(m_db,
                             surveyId ? "SELECT id, survey_id, received_at, payload FROM responses"
                                        " WHERE survey_id = ? ORDER BY id"
                                      : "SELECT id, survey_id, received_at, payload FROM responses ORDER BY id");
    if (!statement)
        return std::unexpected(statement.error());
    if (surveyId && !bindText(statement->get(), 1, *surveyId))
        return std::unexpected(std::string(sqlite3_errmsg(m_db)));
    std::vector<TovuStoredResponse> responses;
    int step = SQLITE_ROW;
    while ((step = sqlite3_step(statement->get())) == SQLITE_ROW) {
        responses.push_back({sqlite3_column_int64(statement->get(), 0), columnText(statement->get(), 1),
                             columnText(statement->get(), 2), columnText(statement->get(), 3)});
    }
    if (step != SQLITE_DONE)
        return std::unexpected(std::string(sqlite3_errmsg(m_db)));
    return responses;
}

std::expected<std::int64_t, std::string> TovuResponseStore::count(const std::string &surveyId) const
{
    const std::lock_guard lock(m_mutex);
    auto statement = prepare(m_db, "SELECT COUNT(*) FROM responses WHERE survey_id = ?");
    if (!statement)
        return std::unexpected(statement.error());
    if (!bindText(statement->get(), 1, surveyId) || sqlite3_step(statement->get()) != SQLITE_ROW)
        return std::unexpected(std::string(sqlite3_errmsg(m_db)));
    return sqlite3_column_int64(statement->get(), 0);
}
