// What queueing one response costs the GUI thread when the backend cannot be
// reached and N responses already wait, on a real SQLite file: the usual case,
// where the queue still knows the stored bytes and encodes only the new response,
// and the first enqueue after the store was opened, which decodes the stored list
// once. At 1,000 queued an enqueue should stay within 5 ms.

#include "TovuSessionBench.h"

#include <tovukit_io/core/TovuOfflineQueue.h>
#include <tovukit_io/model/TovuQueuedResponseJson.h>
#include <tovukit_io/platform/TovuSqliteKeyValueStore.h>

#include <QTemporaryDir>

#include <benchmark/benchmark.h>

#include <algorithm>
#include <memory>
#include <optional>

namespace {

// N queued responses and one more to add, with the bytes of the N as stored.
struct Backlog {
    explicit Backlog(std::size_t count)
        : queued(TovuSessionBench::sampleResponses(count + 1))
    {
        next = queued.back();
        queued.pop_back();
        blob = QByteArray::fromStdString(tovuEncode(queued).value_or("[]"));
    }

    std::vector<TovuQueuedResponse> queued;
    TovuQueuedResponse next;
    QByteArray blob;
};

// A store file of its own in a temporary folder, opened again on demand.
class QueueFile
{
public:
    QueueFile() { reopen(); }

    TovuSqliteKeyValueStore &store() { return *m_store; }
    void reopen()
    {
        m_store.reset();
        m_store = std::make_unique<TovuSqliteKeyValueStore>(m_dir.path() + QStringLiteral("/kv.sqlite"));
    }

private:
    QTemporaryDir m_dir;
    std::unique_ptr<TovuSqliteKeyValueStore> m_store;
};

void reportSizes(benchmark::State &state, const Backlog &backlog)
{
    state.counters["queuedBytes"] = static_cast<double>(backlog.blob.size());
    state.counters["queued"] = static_cast<double>(backlog.queued.size());
}

// The queue wrote the stored list itself, so only the new response is encoded;
// the stored bytes are still read, compared and written back whole. The queue
// grows by a tenth of N at most before it is put back to N: one write per
// enqueue, as in use, so the log is checkpointed as often as in use.
void BM_Enqueue(benchmark::State &state)
{
    const Backlog backlog(static_cast<std::size_t>(state.range(0)));
    const std::size_t limit = backlog.queued.size() + std::max<std::size_t>(1, backlog.queued.size() / 10);
    QueueFile file;
    TovuOfflineQueue queue(file.store());
    queue.store(backlog.queued);
    for (auto _ : state) {
        if (queue.enqueue(backlog.next) < limit)
            continue;
        state.PauseTiming();
        queue.store(backlog.queued); // back to N, remembered as written
        state.ResumeTiming();
    }
    reportSizes(state, backlog);
}
BENCHMARK(BM_Enqueue)->RangeMultiplier(10)->Range(10, 10'000)->Unit(benchmark::kMicrosecond);

// After a launch: the store file opened again and a new queue, which has not seen
// the stored bytes yet and decodes them once.
void BM_EnqueueCold(benchmark::State &state)
{
    const Backlog backlog(static_cast<std::size_t>(state.range(0)));
    QueueFile file;
    std::optional<TovuOfflineQueue> queue; // let go of outside the timing
    for (auto _ : state) {
        state.PauseTiming();
        queue.reset();
        file.store().setData(TovuOfflineQueue::defaultKey, backlog.blob);
        file.reopen();
        queue.emplace(file.store());
        state.ResumeTiming();
        benchmark::DoNotOptimize(queue->enqueue(backlog.next));
    }
    reportSizes(state, backlog);
}
BENCHMARK(BM_EnqueueCold)->RangeMultiplier(10)->Range(10, 10'000)->Unit(benchmark::kMicrosecond);

} // namespace
