// The offline queue survives its process being killed at any moment: after
// each SIGKILL the stored queue decodes and holds every response whose
// enqueue had returned. TOVU_CRASH_ROUNDS sets the number of kills (200).

#include <tovukit_io/core/TovuOfflineQueue.h>
#include <tovukit_io/model/TovuQueuedResponseJson.h>
#include <tovukit_io/platform/TovuSqliteKeyValueStore.h>

#include <QProcess>
#include <QRandomGenerator>
#include <QTemporaryDir>
#include <QThread>

#include <gtest/gtest.h>

#include <set>

namespace {

int rounds()
{
    const int fromEnvironment = qEnvironmentVariableIntValue("TOVU_CRASH_ROUNDS");
    return fromEnvironment > 0 ? fromEnvironment : 200;
}

std::vector<std::string> acknowledged(const QByteArray &output)
{
    std::vector<std::string> ids;
    for (const QByteArray &line : output.split('\n').mid(0, output.count('\n')))
        ids.push_back(line.toStdString());
    return ids;
}

} // namespace

TEST(QueueCrashSafety, EveryReturnedEnqueueSurvivesAKill)
{
    QTemporaryDir dir;
    ASSERT_TRUE(dir.isValid());
    const QString file = dir.filePath(QStringLiteral("queue.sqlite"));
    QRandomGenerator random(20261122);

    for (int round = 0; round < rounds(); ++round) {
        SCOPED_TRACE(round);
        QProcess writer;
        writer.start(QStringLiteral(TOVU_QUEUE_WRITER), {file, QStringLiteral("R%1").arg(round)});
        ASSERT_TRUE(writer.waitForStarted(5000));
        // Kill once it is writing, at a random moment of its loop.
        ASSERT_TRUE(writer.waitForReadyRead(10000)) << writer.readAllStandardError().toStdString();
        QThread::usleep(random.bounded(15000u));
        writer.kill(); // SIGKILL: no handler, no flush, no cleanup
        ASSERT_TRUE(writer.waitForFinished(5000));
        ASSERT_EQ(writer.exitStatus(), QProcess::CrashExit);

        const auto ids = acknowledged(writer.readAllStandardOutput());
        ASSERT_FALSE(ids.empty());
        TovuSqliteKeyValueStore store(file);
        ASSERT_TRUE(store.isPersistent());
        const auto blob = store.data(TovuOfflineQueue::defaultKey);
        ASSERT_TRUE(blob);
        const auto stored = tovuDecode<std::vector<TovuQueuedResponse>>(
            std::string_view(blob->constData(), static_cast<std::size_t>(blob->size())));
        ASSERT_TRUE(stored) << stored.error().message;
        std::set<std::string> present;
        for (const auto &response : *stored)
            present.insert(response.responseId);
        for (const auto &id : ids)
            ASSERT_TRUE(present.contains(id)) << id << " was acknowledged but is gone";
    }
}
