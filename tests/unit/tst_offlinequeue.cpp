// The offline queue over a real key-value store: what it stores, what it
// makes of stored values it did not write, and the fast append path.

#include "TovuCodingAssertions.h"

#include <tovukit_io/core/TovuOfflineQueue.h>
#include <tovukit_io/platform/TovuMemoryKeyValueStore.h>
#include <tovukit_io/platform/TovuSqliteKeyValueStore.h>

#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <limits>
#include <string>
#include <vector>

namespace {

TovuQueuedResponse response(std::string id)
{
    return TovuQueuedResponse{
        .responseId = id,
        .surveyId = "s-1",
        .collectorUUID = "",
        .mode = "iOS SDK",
        .status = "complete",
        .startTime = "2026-11-15T18:14:20Z",
        .endTime = "2026-11-15T18:16:02Z",
        .answers = {TovuAnswer{"q1", {{.rowId = "o2"}}}, TovuAnswer{"q2", {{.rowId = "r1", .colId = "4"}}}},
        .geolocation = TovuGeolocation{"point", {std::nullopt, std::nullopt}, "DE", std::nullopt, std::nullopt},
    };
}

std::vector<std::string> ids(const std::vector<TovuQueuedResponse> &responses)
{
    std::vector<std::string> out;
    for (const auto &r : responses)
        out.push_back(r.responseId);
    return out;
}

constexpr std::string_view key = TovuOfflineQueue::defaultKey;

} // namespace

TEST(OfflineQueue, StoresWholeListsAndAppendsInOrder)
{
    TovuMemoryKeyValueStore store;
    TovuOfflineQueue queue(store);
    EXPECT_TRUE(queue.load().empty()) << "nothing stored is an empty queue";

    EXPECT_EQ(queue.enqueue(response("A")), 1u);
    EXPECT_EQ(queue.enqueue(response("B")), 2u);
    EXPECT_EQ(queue.enqueue(response("C")), 3u);
    EXPECT_EQ(ids(queue.load()), (std::vector<std::string>{"A", "B", "C"}));
    EXPECT_EQ(queue.load()[1], response("B")) << "every field survives the stored form";

    // A second queue on the same store (the next launch) reads the same list.
    TovuOfflineQueue relaunched(store);
    EXPECT_EQ(relaunched.load(), queue.load());

    queue.store({response("B")});
    EXPECT_EQ(ids(relaunched.load()), std::vector<std::string>{"B"});

    queue.clear();
    EXPECT_EQ(store.data(key), QByteArray("[]")) << "a cleared queue is an empty array, not nothing";
    EXPECT_TRUE(relaunched.load().empty());
}

TEST(OfflineQueue, SeesValuesOthersWroteAndKeepsWhatItCannotRead)
{
    TovuMemoryKeyValueStore store;
    TovuOfflineQueue queue(store);
    queue.enqueue(response("A"));

    // Someone else replaces the value (another process on the same file):
    // the remembered bytes no longer match, so the append starts from what is stored.
    TovuOfflineQueue other(store);
    other.store({response("X"), response("Y")});
    EXPECT_EQ(queue.enqueue(response("B")), 3u);
    EXPECT_EQ(ids(other.load()), (std::vector<std::string>{"X", "Y", "B"}));

    // Stored bytes that do not decode: an empty queue, the bytes left alone
    // until the next write replaces them.
    for (const QByteArray &corrupt : {QByteArray("{\"not\": \"a list\"}"), QByteArray("[{\"responseId\": 1}]"),
                                      QByteArray("[\xff\xfe"), QByteArray("")}) {
        SCOPED_TRACE(corrupt.toStdString());
        store.setData(key, corrupt);
        EXPECT_TRUE(queue.load().empty());
        EXPECT_EQ(store.data(key), corrupt);
        EXPECT_EQ(queue.enqueue(response("N")), 1u);
        EXPECT_EQ(ids(other.load()), std::vector<std::string>{"N"});
    }

    // Whitespace after a valid array: still appended to, nothing lost.
    store.setData(key, QByteArray("[") + QByteArray::fromStdString(*tovuEncode(response("W"))) + "]\n");
    EXPECT_EQ(queue.enqueue(response("Z")), 2u);
    EXPECT_EQ(ids(other.load()), (std::vector<std::string>{"W", "Z"}));
}

TEST(OfflineQueue, ARecordThatCannotBeEncodedIsNotWritten)
{
    TovuMemoryKeyValueStore store;
    TovuOfflineQueue queue(store);
    queue.enqueue(response("A"));
    const auto before = store.data(key);

    auto broken = response("B");
    broken.qualityFlags = TovuQualityFlags{};
    broken.qualityFlags->data.survey.totalTimeDuration = std::numeric_limits<double>::infinity();
    EXPECT_EQ(queue.enqueue(broken), 1u);
    EXPECT_FALSE(queue.store({response("A"), broken}));
    EXPECT_EQ(store.data(key), before);
}

TEST(OfflineQueue, PersistsInASqliteFile)
{
    QTemporaryDir dir;
    ASSERT_TRUE(dir.isValid());
    const QString path = dir.filePath(QStringLiteral("queue.sqlite"));
    {
        TovuSqliteKeyValueStore store(path);
        TovuOfflineQueue queue(store);
        for (const char *id : {"A", "B", "C"})
            queue.enqueue(response(id));
    }
    TovuSqliteKeyValueStore reopened(path);
    EXPECT_EQ(ids(TovuOfflineQueue(reopened).load()), (std::vector<std::string>{"A", "B", "C"}));
}
