#pragma once

#include <tovukit_io/platform/TovuKeyValueStore.h>

#include <QString>

#include <memory>

/// The key-value store kept in one SQLite file (WAL mode, one table
/// `kv(key TEXT PRIMARY KEY, value BLOB)`); each write is committed on its own.
/// The log is checkpointed into the file on a thread of the store's own, so
/// a write costs the caller its commit and no more.
///
/// A store never fails its caller. When the file cannot be used it reports
/// one ">>> Tovu SDK Error: " line through TovuLog and goes on:
/// - a file that is not a database or fails SQLite's quick check on open is
///   renamed to "<file>.corrupt" (or "<file>.corrupt-2", … when that name is
///   taken), together with its "-wal" and "-shm" files, so nothing of the
///   user's is deleted; a new, empty file takes its place and the store stays
///   persistent;
/// - a file that cannot be opened, a broken file that cannot be set aside, or
///   any failure later in the run: the store keeps what it could still read
///   and works in memory until it is destroyed. Writes then return false.
///
/// Calls are serialized by a lock, so any thread may use the store. Other
/// store objects and other processes on the same file see every committed
/// write.
///
/// \code
/// TovuSqliteKeyValueStore store(dir + QStringLiteral("/tovukit.sqlite"));
/// store.setData("com.tovu.offline_responses", queueJson);
/// const auto visits = store.integer("Visits:https://example.com/s/1").value_or(0);
/// \endcode
class TovuSqliteKeyValueStore : public TovuKeyValueStore
{
public:
    /// Opens or creates the file, and the folders leading to it.
    explicit TovuSqliteKeyValueStore(const QString &path);
    ~TovuSqliteKeyValueStore() override;

    TovuSqliteKeyValueStore(const TovuSqliteKeyValueStore &) = delete;
    TovuSqliteKeyValueStore &operator=(const TovuSqliteKeyValueStore &) = delete;

    std::optional<QByteArray> data(std::string_view key) const override;
    std::optional<std::int64_t> integer(std::string_view key) const override;
    bool setData(std::string_view key, const QByteArray &value) override;
    bool setInteger(std::string_view key, std::int64_t value) override;
    bool removeValue(std::string_view key) override;
    std::optional<std::uint64_t> revision() const override;

    QString path() const;
    /// False once the store has fallen back to memory.
    bool isPersistent() const;

private:
    class Private;
    std::unique_ptr<Private> d;
};
