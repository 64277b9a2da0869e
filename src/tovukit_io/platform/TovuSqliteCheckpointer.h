#pragma once

#include <QString>

#include <condition_variable>
#include <mutex>
#include <thread>

struct sqlite3;

/// Copies a WAL-mode SQLite file's log back into the file on a thread of its
/// own, so the connection that writes never pays for it.
///
/// A checkpoint rewrites the pages of the log into the database and syncs
/// both to disk: with a long offline queue that is milliseconds of disk time,
/// which SQLite's automatic checkpoint would spend inside the write that
/// happened to fill the log, on the GUI thread. The writer instead calls
/// watch(): after each of its commits the log size is checked and, past the
/// threshold, this thread checkpoints through its own connection. Passive
/// checkpoints never block the writer; when this thread cannot open the file,
/// the writer checkpoints itself as before.
class TovuSqliteCheckpointer
{
public:
    /// Log size, in pages, that starts a checkpoint.
    static constexpr int thresholdPages = 256;

    explicit TovuSqliteCheckpointer(QString path);
    /// Stops the thread; a checkpoint under way finishes first.
    ~TovuSqliteCheckpointer();

    TovuSqliteCheckpointer(const TovuSqliteCheckpointer &) = delete;
    TovuSqliteCheckpointer &operator=(const TovuSqliteCheckpointer &) = delete;

    /// Takes over checkpointing of `writer`, which must outlive this object.
    void watch(sqlite3 *writer);

    /// How many checkpoints this thread has run; for tests.
    int checkpointCount() const;

private:
    static int committed(void *self, sqlite3 *writer, const char *database, int pages);
    void request();
    void run();
    bool checkpoint();

    const QString m_path;
    mutable std::mutex m_mutex;
    std::condition_variable m_wake;
    bool m_pending = false;
    bool m_stopping = false;
    bool m_broken = false;
    int m_count = 0;
    sqlite3 *m_db = nullptr;
    std::thread m_thread;
};
