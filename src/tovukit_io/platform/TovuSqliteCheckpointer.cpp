#include "TovuSqliteCheckpointer.h"

#include <sqlite3.h>

TovuSqliteCheckpointer::TovuSqliteCheckpointer(QString path)
    : m_path(std::move(path))
    , m_thread([this] { run(); })
{ }

TovuSqliteCheckpointer::~TovuSqliteCheckpointer()
{
    {
        const std::lock_guard lock(m_mutex);
        m_stopping = true;
    }
    m_wake.notify_one();
    m_thread.join();
    sqlite3_close_v2(m_db);
}

void TovuSqliteCheckpointer::watch(sqlite3 *writer)
{
    // Replaces SQLite's own automatic checkpoint, which is a hook of the same kind.
    sqlite3_wal_hook(writer, &TovuSqliteCheckpointer::committed, this);
}

int TovuSqliteCheckpointer::checkpointCount() const
{
    const std::lock_guard lock(m_mutex);
    return m_count;
}

// Runs inside the writer's commit, after the log was written.
int TovuSqliteCheckpointer::committed(void *self, sqlite3 *writer, const char *database, int pages)
{
    auto *checkpointer = static_cast<TovuSqliteCheckpointer *>(self);
    if (pages < thresholdPages)
        return SQLITE_OK;
    bool broken = false;
    {
        const std::lock_guard lock(checkpointer->m_mutex);
        broken = checkpointer->m_broken;
    }
    if (broken)
        sqlite3_wal_checkpoint_v2(writer, database, SQLITE_CHECKPOINT_PASSIVE, nullptr, nullptr);
    else
        checkpointer->request();
    return SQLITE_OK;
}

void TovuSqliteCheckpointer::request()
{
    {
        const std::lock_guard lock(m_mutex);
        m_pending = true;
    }
    m_wake.notify_one();
}

void TovuSqliteCheckpointer::run()
{
    std::unique_lock lock(m_mutex);
    while (true) {
        m_wake.wait(lock, [this] { return m_pending || m_stopping; });
        if (m_stopping)
            return;
        m_pending = false;
        lock.unlock();
        const bool done = checkpoint();
        lock.lock();
        if (done)
            ++m_count;
        else
            m_broken = true;
    }
}

bool TovuSqliteCheckpointer::checkpoint()
{
    if (!m_db) {
        constexpr int flags = SQLITE_OPEN_READWRITE | SQLITE_OPEN_NOMUTEX;
        // A fresh connection does not know the file is in WAL mode until it reads it.
        if (sqlite3_open_v2(m_path.toUtf8().constData(), &m_db, flags, nullptr) != SQLITE_OK
            || sqlite3_exec(m_db, "PRAGMA journal_mode=WAL", nullptr, nullptr, nullptr) != SQLITE_OK) {
            sqlite3_close_v2(m_db);
            m_db = nullptr;
            return false;
        }
        // Only ever checkpoint: this connection must not fold the log in on close.
        sqlite3_db_config(m_db, SQLITE_DBCONFIG_NO_CKPT_ON_CLOSE, 1, nullptr);
    }
    // Busy means someone else is checkpointing; the next commit asks again.
    const int code = sqlite3_wal_checkpoint_v2(m_db, "main", SQLITE_CHECKPOINT_PASSIVE, nullptr, nullptr);
    return code == SQLITE_OK || code == SQLITE_BUSY;
}
