#include <tovukit_io/platform/TovuSqliteKeyValueStore.h>

#include <tovukit_io/model/TovuLog.h>
#include <tovukit_io/platform/TovuMemoryKeyValueStore.h>

#include "TovuSqliteCheckpointer.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <sqlite3.h>

#include <mutex>
#include <variant>

namespace {

// Another process's write blocks ours for at most this long; we run on the
// GUI thread, so waiting longer would freeze the host.
constexpr int busyTimeoutMs = 1000;

// A removal, a blob or an integer.
using Value = std::variant<std::monostate, QByteArray, std::int64_t>;

struct Failure {
    int code;
    QString message;
};

bool isDamaged(int code)
{
    const int primary = code & 0xff;
    return primary == SQLITE_CORRUPT || primary == SQLITE_NOTADB;
}

QString quoted(const QString &path)
{
    return u'"' + path + u'"';
}

void report(const QString &text)
{
    const QByteArray line = (QStringLiteral(">>> Tovu SDK Error: ") + text).toUtf8();
    TovuLog::print(std::string_view(line.constData(), static_cast<std::size_t>(line.size())));
}

// Binding a null pointer would store NULL, which matches no key.
int bindKey(sqlite3_stmt *statement, std::string_view key)
{
    return sqlite3_bind_text64(statement, 1, key.empty() ? "" : key.data(), key.size(), SQLITE_STATIC, SQLITE_UTF8);
}

int bindValue(sqlite3_stmt *statement, const Value &value)
{
    if (const auto *blob = std::get_if<QByteArray>(&value)) {
        // An empty blob is still a blob; bind_blob with no bytes would bind NULL.
        if (blob->isEmpty())
            return sqlite3_bind_zeroblob(statement, 2, 0);
        return sqlite3_bind_blob64(statement, 2, blob->constData(), static_cast<sqlite3_uint64>(blob->size()),
                                   SQLITE_STATIC);
    }
    return sqlite3_bind_int64(statement, 2, std::get<std::int64_t>(value));
}

// The value in `column` of the current row; nothing for what this store never writes.
Value columnValue(sqlite3_stmt *statement, int column)
{
    switch (sqlite3_column_type(statement, column)) {
    case SQLITE_BLOB: {
        const auto *bytes = static_cast<const char *>(sqlite3_column_blob(statement, column));
        const int size = sqlite3_column_bytes(statement, column);
        return size > 0 ? QByteArray(bytes, size) : QByteArray("");
    }
    case SQLITE_INTEGER:
        return static_cast<std::int64_t>(sqlite3_column_int64(statement, column));
    default:
        return std::monostate{};
    }
}

// Statements are kept and reused: the bindings point into the caller's
// buffers, so they are dropped after every use.
void finish(sqlite3_stmt *statement)
{
    sqlite3_reset(statement);
    sqlite3_clear_bindings(statement);
}

} // namespace

class TovuSqliteKeyValueStore::Private
{
public:
    explicit Private(const QString &filePath);
    ~Private() { close(); }

    Value read(std::string_view key);
    bool write(std::string_view key, const Value &value);
    std::uint64_t revision();

    const QString path;
    std::mutex mutex;
    // Set once the file is given up; from then on it holds every value.
    std::unique_ptr<TovuMemoryKeyValueStore> memory;

private:
    void open();
    std::optional<Failure> connect();
    std::optional<Failure> prepare(const char *sql, sqlite3_stmt **statement);
    std::optional<Failure> quickCheck();
    Failure failure(int code) const;
    void close();
    QString setAside();

    std::optional<Value> readFromFile(std::string_view key);
    bool writeToFile(std::string_view key, const Value &value);
    Value readFromMemory(std::string_view key) const;
    void writeToMemory(std::string_view key, const Value &value);
    void fallBackToMemory(const QString &why);
    void copyReadableRows();

    void noteOtherWriters();

    sqlite3 *m_db = nullptr;
    std::unique_ptr<TovuSqliteCheckpointer> m_checkpointer;
    sqlite3_stmt *m_dataVersion = nullptr;
    sqlite3_int64 m_lastDataVersion = -1;
    std::uint64_t m_revision = 0;
    sqlite3_stmt *m_select = nullptr;
    sqlite3_stmt *m_upsert = nullptr;
    sqlite3_stmt *m_remove = nullptr;
};

TovuSqliteKeyValueStore::Private::Private(const QString &filePath)
    : path(filePath)
{
    open();
}

void TovuSqliteKeyValueStore::Private::open()
{
    if (path.isEmpty()) {
        fallBackToMemory(QStringLiteral("Cannot open the key-value store at \"\": no file path"));
        return;
    }
    // A folder that cannot be made shows up as a file that cannot be opened.
    QDir().mkpath(QFileInfo(path).absolutePath());

    const auto failed = connect();
    if (!failed)
        return;
    if (!isDamaged(failed->code)) {
        fallBackToMemory(QStringLiteral("Cannot open the key-value store at ") + quoted(path) + QStringLiteral(": ")
                         + failed->message);
        return;
    }

    const QString damaged
        = QStringLiteral("The key-value store at ") + quoted(path) + QStringLiteral(" is damaged: ") + failed->message;
    // Leave the broken file exactly as it is for whoever wants to recover it.
    sqlite3_db_config(m_db, SQLITE_DBCONFIG_NO_CKPT_ON_CLOSE, 1, nullptr);
    close();
    const QString aside = setAside();
    if (aside.isEmpty()) {
        fallBackToMemory(damaged + QStringLiteral(". Could not move it aside"));
        return;
    }
    if (const auto again = connect()) {
        fallBackToMemory(damaged + QStringLiteral(". Moved it to ") + quoted(aside)
                         + QStringLiteral(", but cannot start a new one: ") + again->message);
        return;
    }
    report(damaged + QStringLiteral(". Moved it to ") + quoted(aside) + QStringLiteral(" and started a new one."));
}

std::optional<Failure> TovuSqliteKeyValueStore::Private::connect()
{
    // Our own lock serializes every use of the connection and its statements,
    // so SQLite's per-connection mutex would only add cost.
    constexpr int flags = SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE | SQLITE_OPEN_NOMUTEX;
    if (const int code = sqlite3_open_v2(path.toUtf8().constData(), &m_db, flags, nullptr); code != SQLITE_OK)
        return failure(code);
    if (sqlite3_db_readonly(m_db, "main") == 1)
        return Failure{SQLITE_READONLY, QStringLiteral("the file is read-only")};
    sqlite3_busy_timeout(m_db, busyTimeoutMs);

    // WAL: readers and the writer do not block each other, and a commit
    // appends to the log instead of rewriting pages. With WAL, synchronous=NORMAL
    // syncs only at checkpoints: a killed process loses nothing committed
    // (the log is already in the OS), and a power cut can lose the last
    // commits but never leaves the file inconsistent.
    // 16 KiB pages (for new files) halve the cost of writing a long queue.
    for (const char *setup : {"PRAGMA page_size=16384", "PRAGMA journal_mode=WAL", "PRAGMA synchronous=NORMAL"}) {
        if (const int code = sqlite3_exec(m_db, setup, nullptr, nullptr, nullptr); code != SQLITE_OK)
            return failure(code);
    }
    if (auto damaged = quickCheck())
        return damaged;
    if (const int code = sqlite3_exec(m_db, "CREATE TABLE IF NOT EXISTS kv(key TEXT PRIMARY KEY, value BLOB)", nullptr,
                                      nullptr, nullptr);
        code != SQLITE_OK)
        return failure(code);

    if (auto failed = prepare("SELECT value FROM kv WHERE key = ?1", &m_select))
        return failed;
    if (auto failed = prepare("PRAGMA data_version", &m_dataVersion))
        return failed;
    if (auto failed = prepare("INSERT INTO kv(key, value) VALUES(?1, ?2) "
                              "ON CONFLICT(key) DO UPDATE SET value = excluded.value",
                              &m_upsert))
        return failed;
    if (auto failed = prepare("DELETE FROM kv WHERE key = ?1", &m_remove))
        return failed;
    // The log is folded back into the file on another thread, at 256 pages
    // (SQLite's usual 4 MiB with these pages).
    m_checkpointer = std::make_unique<TovuSqliteCheckpointer>(path);
    m_checkpointer->watch(m_db);
    return std::nullopt;
}

std::optional<Failure> TovuSqliteKeyValueStore::Private::prepare(const char *sql, sqlite3_stmt **statement)
{
    if (const int code = sqlite3_prepare_v3(m_db, sql, -1, SQLITE_PREPARE_PERSISTENT, statement, nullptr);
        code != SQLITE_OK)
        return failure(code);
    return std::nullopt;
}

// The file is small, so checking every page once per run is cheap, and it
// finds damage before a write could build on it.
std::optional<Failure> TovuSqliteKeyValueStore::Private::quickCheck()
{
    sqlite3_stmt *check = nullptr;
    if (const auto failed = prepare("PRAGMA quick_check(1)", &check))
        return failed;
    std::optional<Failure> result;
    const int code = sqlite3_step(check);
    if (code == SQLITE_ROW) {
        const auto *text = reinterpret_cast<const char *>(sqlite3_column_text(check, 0));
        const QString verdict = QString::fromUtf8(text ? text : "").simplified();
        if (verdict != u"ok")
            result = Failure{SQLITE_CORRUPT, verdict};
    } else {
        result = failure(code);
    }
    sqlite3_finalize(check);
    return result;
}

Failure TovuSqliteKeyValueStore::Private::failure(int code) const
{
    QString message = QString::fromUtf8(m_db ? sqlite3_errmsg(m_db) : sqlite3_errstr(code));
    // The system's reason says which of the many ways a file cannot be opened this is.
    const int primary = code & 0xff;
    const int error = m_db && (primary == SQLITE_CANTOPEN || primary == SQLITE_IOERR) ? sqlite3_system_errno(m_db) : 0;
    if (error != 0)
        message += QStringLiteral(" (") + qt_error_string(error) + u')';
    return {code, message};
}

void TovuSqliteKeyValueStore::Private::close()
{
    m_checkpointer.reset();
    for (sqlite3_stmt **statement : {&m_select, &m_upsert, &m_remove, &m_dataVersion}) {
        sqlite3_finalize(*statement);
        *statement = nullptr;
    }
    sqlite3_close_v2(m_db);
    m_db = nullptr;
}

// Moves the file and its log to the first free "<file>.corrupt[-N]" name;
// the log moves first so a new file never meets the old one's log.
QString TovuSqliteKeyValueStore::Private::setAside()
{
    constexpr int maxCopies = 100;
    for (int copy = 1; copy <= maxCopies; ++copy) {
        const QString aside
            = path + QStringLiteral(".corrupt") + (copy > 1 ? QString(u'-' + QString::number(copy)) : QString());
        if (QFileInfo::exists(aside) || QFileInfo::exists(aside + QStringLiteral("-wal")))
            continue;
        QStringList handled;
        for (const QString &suffix : {QStringLiteral("-wal"), QStringLiteral("-shm")}) {
            if (QFileInfo::exists(path + suffix) && !QFile::rename(path + suffix, aside + suffix))
                break;
            handled.append(suffix);
        }
        if (handled.size() == 2 && QFile::rename(path, aside))
            return aside;
        for (const QString &suffix : handled)
            QFile::rename(aside + suffix, path + suffix);
        return {};
    }
    return {};
}

Value TovuSqliteKeyValueStore::Private::read(std::string_view key)
{
    const std::lock_guard lock(mutex);
    if (!memory) {
        if (auto value = readFromFile(key))
            return *std::move(value);
    }
    return readFromMemory(key);
}

bool TovuSqliteKeyValueStore::Private::write(std::string_view key, const Value &value)
{
    const std::lock_guard lock(mutex);
    ++m_revision;
    if (!memory && writeToFile(key, value))
        return true;
    writeToMemory(key, value);
    return false;
}

std::uint64_t TovuSqliteKeyValueStore::Private::revision()
{
    const std::lock_guard lock(mutex);
    if (!memory)
        noteOtherWriters();
    return m_revision;
}

// Commits of other connections (other store objects, other processes) move
// SQLite's data version; ours do not, write() counts those.
void TovuSqliteKeyValueStore::Private::noteOtherWriters()
{
    if (sqlite3_step(m_dataVersion) == SQLITE_ROW) {
        const sqlite3_int64 version = sqlite3_column_int64(m_dataVersion, 0);
        if (version != m_lastDataVersion)
            ++m_revision;
        m_lastDataVersion = version;
    } else {
        ++m_revision; // not known: say it may have changed
    }
    sqlite3_reset(m_dataVersion);
}

std::optional<Value> TovuSqliteKeyValueStore::Private::readFromFile(std::string_view key)
{
    int code = bindKey(m_select, key);
    if (code == SQLITE_OK)
        code = sqlite3_step(m_select);
    Value value;
    if (code == SQLITE_ROW)
        value = columnValue(m_select, 0);
    const bool ok = code == SQLITE_ROW || code == SQLITE_DONE;
    const Failure failed = ok ? Failure{} : failure(code);
    finish(m_select);
    if (ok)
        return value;
    fallBackToMemory(QStringLiteral("The key-value store at ") + quoted(path) + QStringLiteral(" failed: ")
                     + failed.message);
    return std::nullopt;
}

bool TovuSqliteKeyValueStore::Private::writeToFile(std::string_view key, const Value &value)
{
    const bool removing = std::holds_alternative<std::monostate>(value);
    sqlite3_stmt *statement = removing ? m_remove : m_upsert;
    int code = bindKey(statement, key);
    if (code == SQLITE_OK && !removing)
        code = bindValue(statement, value);
    if (code == SQLITE_OK)
        code = sqlite3_step(statement);
    const bool ok = code == SQLITE_DONE;
    const Failure failed = ok ? Failure{} : failure(code);
    finish(statement);
    if (!ok)
        fallBackToMemory(QStringLiteral("The key-value store at ") + quoted(path) + QStringLiteral(" failed: ")
                         + failed.message);
    return ok;
}

Value TovuSqliteKeyValueStore::Private::readFromMemory(std::string_view key) const
{
    if (auto blob = memory->data(key))
        return *std::move(blob);
    if (const auto number = memory->integer(key))
        return *number;
    return std::monostate{};
}

void TovuSqliteKeyValueStore::Private::writeToMemory(std::string_view key, const Value &value)
{
    if (const auto *blob = std::get_if<QByteArray>(&value))
        memory->setData(key, *blob);
    else if (const auto *number = std::get_if<std::int64_t>(&value))
        memory->setInteger(key, *number);
    else
        memory->removeValue(key);
}

// Memory is final: this runs at most once per store, so the line is printed once.
void TovuSqliteKeyValueStore::Private::fallBackToMemory(const QString &why)
{
    memory = std::make_unique<TovuMemoryKeyValueStore>();
    copyReadableRows();
    close();
    report(why + QStringLiteral(". Keeping values in memory for this run."));
}

// What this run wrote is still on disk when a later statement fails, so keep
// whatever can be read instead of starting empty.
void TovuSqliteKeyValueStore::Private::copyReadableRows()
{
    sqlite3_stmt *rows = nullptr;
    if (!m_db || sqlite3_prepare_v2(m_db, "SELECT key, value FROM kv", -1, &rows, nullptr) != SQLITE_OK) {
        sqlite3_finalize(rows);
        return;
    }
    while (sqlite3_step(rows) == SQLITE_ROW) {
        const auto *text = static_cast<const char *>(sqlite3_column_blob(rows, 0));
        const auto size = static_cast<std::size_t>(sqlite3_column_bytes(rows, 0));
        const Value value = columnValue(rows, 1);
        if (!std::holds_alternative<std::monostate>(value))
            writeToMemory(std::string_view(text ? text : "", size), value);
    }
    sqlite3_finalize(rows);
}

TovuSqliteKeyValueStore::TovuSqliteKeyValueStore(const QString &path)
    : d(std::make_unique<Private>(path))
{ }

TovuSqliteKeyValueStore::~TovuSqliteKeyValueStore() = default;

std::optional<QByteArray> TovuSqliteKeyValueStore::data(std::string_view key) const
{
    auto value = d->read(key);
    if (auto *blob = std::get_if<QByteArray>(&value))
        return std::move(*blob);
    return std::nullopt;
}

std::optional<std::int64_t> TovuSqliteKeyValueStore::integer(std::string_view key) const
{
    const auto value = d->read(key);
    if (const auto *number = std::get_if<std::int64_t>(&value))
        return *number;
    return std::nullopt;
}

bool TovuSqliteKeyValueStore::setData(std::string_view key, const QByteArray &value)
{
    return d->write(key, value);
}

bool TovuSqliteKeyValueStore::setInteger(std::string_view key, std::int64_t value)
{
    return d->write(key, value);
}

bool TovuSqliteKeyValueStore::removeValue(std::string_view key)
{
    return d->write(key, std::monostate{});
}

std::optional<std::uint64_t> TovuSqliteKeyValueStore::revision() const
{
    return d->revision();
}

QString TovuSqliteKeyValueStore::path() const
{
    return d->path;
}

bool TovuSqliteKeyValueStore::isPersistent() const
{
    const std::lock_guard lock(d->mutex);
    return !d->memory;
}
