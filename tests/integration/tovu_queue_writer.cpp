// Enqueues responses into an offline queue in a SQLite file until it is
// killed, printing each id once its enqueue has returned. The crash test
// kills it at random moments and checks the file.
//
//     tovu-queue-writer FILE PREFIX

#include <tovukit_io/core/TovuOfflineQueue.h>
#include <tovukit_io/platform/TovuSqliteKeyValueStore.h>

#include <cstdio>
#include <string>

int main(int argc, char **argv)
{
    if (argc != 3) {
        std::fprintf(stderr, "usage: tovu-queue-writer FILE PREFIX\n");
        return 2;
    }
    TovuSqliteKeyValueStore store(QString::fromLocal8Bit(argv[1]));
    TovuOfflineQueue queue(store);
    // Keep the file small across rounds; the cut is a write that may be killed too.
    if (auto kept = queue.load(); kept.size() > 60) {
        kept.erase(kept.begin(), kept.end() - 20);
        queue.store(kept);
    }
    for (int i = 0;; ++i) {
        const std::string id = std::string(argv[2]) + "-" + std::to_string(i);
        queue.enqueue(
            TovuQueuedResponse{.responseId = id,
                               .surveyId = "S1",
                               .collectorUUID = "",
                               .mode = "iOS SDK",
                               .status = "complete",
                               .startTime = "2026-11-15T18:14:20Z",
                               .endTime = "2026-11-15T18:15:20Z",
                               .answers = {TovuAnswer{"q1", {{.rowId = "o1", .text = std::string(200, 'x')}}}}});
        std::printf("%s\n", id.c_str());
        std::fflush(stdout);
    }
}
