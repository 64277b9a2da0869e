// The key-value stores: what a key holds, the SQLite file shared between
// stores and across runs, and files that cannot be used.

#include <tovukit_io/model/TovuLog.h>
#include <tovukit_io/platform/TovuMemoryKeyValueStore.h>
#include <tovukit_io/platform/TovuSqliteKeyValueStore.h>
#include <tovukit_io/platform/TovuUserDefaults.h>

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QThread>

#include <gtest/gtest.h>
#include <sqlite3.h>

#include <csignal>
#include <functional>
#include <limits>
#include <memory>
#include <string>
#include <vector>

namespace {

struct LogCapture {
    std::vector<std::string> lines;
    LogCapture()
    {
        TovuLog::setHandler([this](std::string_view line) { lines.emplace_back(line); });
    }
    ~LogCapture() { TovuLog::setHandler({}); }
};

QString kvPath(const QTemporaryDir &dir)
{
    return dir.path() + QStringLiteral("/kv.sqlite");
}

QByteArray readAll(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void writeAt(const QString &path, qint64 offset, const QByteArray &bytes)
{
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::ReadWrite) && file.seek(offset) && file.write(bytes) == bytes.size());
}

// Keeps the test names CTest lists readable.
enum class StoreKind { Memory, Sqlite };
void PrintTo(StoreKind kind, std::ostream *out)
{
    *out << (kind == StoreKind::Memory ? "Memory" : "Sqlite");
}

class StoreKinds : public testing::TestWithParam<StoreKind>
{
protected:
    QTemporaryDir dir;
};

} // namespace

TEST_P(StoreKinds, EachKeyHoldsABlobAnIntegerOrNothing)
{
    const std::unique_ptr<TovuKeyValueStore> store = GetParam() == StoreKind::Memory
        ? std::unique_ptr<TovuKeyValueStore>(new TovuMemoryKeyValueStore)
        : std::make_unique<TovuSqliteKeyValueStore>(kvPath(dir));
    const QByteArray binary("\0\xff\x01 bytes", 9);
    constexpr auto smallest = std::numeric_limits<std::int64_t>::min();

    for (const std::string_view key : {std::string_view("Visits:https://example.com/s/1?q=\xc3\xbc"), {}}) {
        SCOPED_TRACE(std::string(key));
        EXPECT_FALSE(store->data(key) || store->integer(key));
        EXPECT_TRUE(store->setData(key, binary));
        EXPECT_EQ(store->data(key), binary);
        EXPECT_FALSE(store->integer(key));
        EXPECT_TRUE(store->setInteger(key, smallest));
        EXPECT_EQ(store->integer(key), smallest);
        EXPECT_FALSE(store->data(key));
        // An empty blob is a value, not nothing.
        EXPECT_TRUE(store->setData(key, QByteArray()));
        EXPECT_EQ(store->data(key), QByteArray());
        EXPECT_TRUE(store->setData(key, QByteArray(1 << 20, 'x')));
        EXPECT_EQ(store->data(key), QByteArray(1 << 20, 'x'));
        EXPECT_TRUE(store->removeValue(key));
        EXPECT_FALSE(store->data(key) || store->integer(key));
        EXPECT_TRUE(store->removeValue(key));
    }
    EXPECT_TRUE(store->setInteger("", 1));
    EXPECT_TRUE(store->setInteger("other", 2));
    EXPECT_EQ(store->integer(""), 1);

    // Reads leave the revision alone; each write moves it by one.
    const auto before = store->revision();
    ASSERT_TRUE(before);
    EXPECT_EQ(store->revision(), before);
    store->setData("other", "x");
    store->removeValue("other");
    EXPECT_EQ(store->revision(), *before + 2);
}

INSTANTIATE_TEST_SUITE_P(KeyValueStore, StoreKinds, testing::Values(StoreKind::Memory, StoreKind::Sqlite),
                         [](const auto &kind) { return testing::PrintToString(kind.param); });

TEST(SqliteKeyValueStore, WritesAreSharedBetweenStoresAndSurviveReopening)
{
    QTemporaryDir dir;
    const QString path = dir.path() + QStringLiteral("/new/folder/kv.sqlite");
    {
        TovuSqliteKeyValueStore first(path);
        TovuSqliteKeyValueStore second(path);
        ASSERT_TRUE(first.isPersistent());
        const auto seen = second.revision();
        EXPECT_TRUE(first.setData("queue", "[1]"));
        EXPECT_NE(second.revision(), seen); // the other store's commit counts
        EXPECT_EQ(second.data("queue"), QByteArray("[1]"));
        EXPECT_TRUE(second.setInteger("visits", 4));
        EXPECT_TRUE(second.removeValue("queue"));
        EXPECT_EQ(first.integer("visits"), 4);
        EXPECT_FALSE(first.data("queue"));
    }
    TovuSqliteKeyValueStore reopened(path);
    EXPECT_EQ(reopened.integer("visits"), 4);
    EXPECT_FALSE(reopened.data("queue"));
}

// The log is folded into the file while the store is open, not only when it closes.
TEST(SqliteKeyValueStore, CheckpointsWhileOpen)
{
    QTemporaryDir dir;
    TovuSqliteKeyValueStore store(kvPath(dir));
    const QByteArray big(6 << 20, 'q');
    ASSERT_TRUE(store.setData("queue", big));
    for (int waited = 0; QFileInfo(kvPath(dir)).size() < big.size() && waited < 5000; waited += 10)
        QThread::msleep(10);
    EXPECT_GE(QFileInfo(kvPath(dir)).size(), big.size());
    EXPECT_EQ(store.data("queue"), big);
}

#ifdef Q_OS_UNIX
TEST(SqliteKeyValueStore, CommittedWritesSurviveAKilledProcess)
{
    QTemporaryDir dir;
    EXPECT_EXIT(
        {
            TovuSqliteKeyValueStore store(kvPath(dir));
            store.setData("queue", QByteArray(100000, 'q'));
            store.setInteger("visits", 7);
            std::raise(SIGKILL);
        },
        testing::KilledBySignal(SIGKILL), "");
    TovuSqliteKeyValueStore store(kvPath(dir));
    EXPECT_EQ(store.data("queue"), QByteArray(100000, 'q'));
    EXPECT_EQ(store.integer("visits"), 7);
}
#endif

// A broken file is kept under a free name, and a new file takes its place.
TEST(SqliteKeyValueStore, DamagedFileIsSetAsideAndReplaced)
{
    const auto overwriteTablePage = [](const QString &path) {
        TovuSqliteKeyValueStore(path).setData("queue", QByteArray(20000, 'q'));
        const QByteArray header = readAll(path);
        const int pageSize = static_cast<uchar>(header[16]) << 8 | static_cast<uchar>(header[17]);
        writeAt(path, pageSize, QByteArray(pageSize, '\xaa')); // page 2: the table's root
    };
    const struct {
        const char *name;
        std::function<void(const QString &)> damage;
        bool earlierCopy;
    } cases[] = {
        {"not a database", [](const QString &path) { writeAt(path, 0, QByteArray(4096, 'Z')); }, true},
        {"a page overwritten", overwriteTablePage, false},
    };
    for (const auto &c : cases) {
        SCOPED_TRACE(c.name);
        QTemporaryDir dir;
        const QString path = kvPath(dir);
        c.damage(path);
        const QByteArray broken = readAll(path);
        if (c.earlierCopy)
            writeAt(path + QStringLiteral(".corrupt"), 0, "earlier");
        const QString aside = path + (c.earlierCopy ? QStringLiteral(".corrupt-2") : QStringLiteral(".corrupt"));

        LogCapture log;
        EXPECT_TRUE(TovuSqliteKeyValueStore(path).setInteger("visits", 1));
        EXPECT_EQ(TovuSqliteKeyValueStore(path).integer("visits"), 1);
        EXPECT_EQ(readAll(aside), broken);
        EXPECT_EQ(readAll(path + QStringLiteral(".corrupt")), c.earlierCopy ? "earlier" : broken);
        ASSERT_EQ(log.lines.size(), 1u);
        EXPECT_TRUE(log.lines[0].starts_with(">>> Tovu SDK Error: The key-value store at \"" + path.toStdString()
                                             + "\" is damaged: "))
            << log.lines[0];
        EXPECT_TRUE(log.lines[0].ends_with(". Moved it to \"" + aside.toStdString() + "\" and started a new one."))
            << log.lines[0];
    }
}

// What cannot be used is left alone; the store keeps everything in memory.
TEST(SqliteKeyValueStore, UnusableFileFallsBackToMemory)
{
    const struct {
        const char *name;
        std::function<QString(const QString &dir)> prepare;
        const char *reason;
    } cases[] = {
        {"a folder in its place",
         [](const QString &dir) -> QString {
             QDir(dir).mkdir(QStringLiteral("kv.sqlite"));
             return dir + QStringLiteral("/kv.sqlite");
         },
         ": unable to open database file (Is a directory)."},
        {"no path", [](const QString &) { return QString(); }, ": no file path."},
        {"another program's kv table",
         [](const QString &dir) -> QString {
             const QString path = dir + QStringLiteral("/kv.sqlite");
             sqlite3 *db = nullptr;
             sqlite3_open(path.toUtf8().constData(), &db);
             sqlite3_exec(db, "CREATE TABLE kv(key TEXT, value BLOB)", nullptr, nullptr, nullptr);
             sqlite3_close(db);
             return path;
         },
         ": ON CONFLICT clause does not match"},
    };
    for (const auto &c : cases) {
        SCOPED_TRACE(c.name);
        QTemporaryDir dir;
        const QString path = c.prepare(dir.path());
        const bool existed = QFileInfo::exists(path);
        LogCapture log;
        TovuSqliteKeyValueStore store(path);

        EXPECT_FALSE(store.isPersistent());
        EXPECT_FALSE(store.setData("queue", "[]"));
        EXPECT_FALSE(store.setInteger("visits", 9));
        EXPECT_EQ(store.data("queue"), QByteArray("[]"));
        EXPECT_EQ(store.integer("visits"), 9);
        EXPECT_FALSE(store.removeValue("queue"));
        EXPECT_FALSE(store.data("queue"));

        ASSERT_EQ(log.lines.size(), 1u);
        const std::string &line = log.lines[0];
        EXPECT_TRUE(line.starts_with(">>> Tovu SDK Error: Cannot open the key-value store at \"" + path.toStdString()
                                     + '"' + c.reason))
            << line;
        EXPECT_TRUE(line.ends_with(". Keeping values in memory for this run.")) << line;
        EXPECT_EQ(QFileInfo::exists(path), existed);
        EXPECT_FALSE(QFileInfo::exists(path + QStringLiteral(".corrupt")));
    }
}

// Another process holds the write lock longer than the store waits.
TEST(SqliteKeyValueStore, FailureLaterInTheRunKeepsEveryValueInMemory)
{
    QTemporaryDir dir;
    const QString path = kvPath(dir);
    LogCapture log;
    TovuSqliteKeyValueStore store(path);
    ASSERT_TRUE(store.setData("queue", "[1]"));
    ASSERT_TRUE(store.setInteger("visits", 1));

    sqlite3 *other = nullptr;
    ASSERT_EQ(sqlite3_open(path.toUtf8().constData(), &other), SQLITE_OK);
    ASSERT_EQ(sqlite3_exec(other, "BEGIN IMMEDIATE", nullptr, nullptr, nullptr), SQLITE_OK);
    EXPECT_FALSE(store.setInteger("visits", 2));
    sqlite3_close_v2(other);

    EXPECT_FALSE(store.isPersistent());
    EXPECT_FALSE(store.setData("late", "x"));
    EXPECT_EQ(store.data("queue"), QByteArray("[1]"));
    EXPECT_EQ(store.integer("visits"), 2);
    EXPECT_EQ(store.data("late"), QByteArray("x"));
    ASSERT_EQ(log.lines.size(), 1u);
    EXPECT_EQ(log.lines[0],
              ">>> Tovu SDK Error: The key-value store at \"" + path.toStdString()
                  + "\" failed: database is locked. Keeping values in memory for this run.");
    EXPECT_EQ(TovuSqliteKeyValueStore(path).integer("visits"), 1);
}

#ifdef Q_OS_LINUX
TEST(UserDefaults, StandardIsAFileInTheAppDataFolder)
{
    QTemporaryDir dir;
    qputenv("XDG_DATA_HOME", dir.path().toUtf8());
    QCoreApplication::setApplicationName(QStringLiteral("tst_keyvaluestore"));
    const QString expected = dir.path() + QStringLiteral("/tst_keyvaluestore/tovukit.sqlite");
    ASSERT_EQ(TovuUserDefaults::standardPath(), expected);

    EXPECT_TRUE(TovuUserDefaults::standard().setInteger("visits", 5));
    EXPECT_EQ(TovuSqliteKeyValueStore(expected).integer("visits"), 5);

    // Without a name every app would share one folder.
    QCoreApplication::setApplicationName(QString());
    EXPECT_EQ(TovuUserDefaults::standardPath(), QString());
}
#endif
