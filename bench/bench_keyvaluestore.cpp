// What the key-value store costs the GUI thread: one committed write and one
// read of a blob the size of a small, a long and a very long offline queue,
// on a real file. A write should stay within a few milliseconds.

#include <tovukit_io/platform/TovuSqliteKeyValueStore.h>

#include <QTemporaryDir>

#include <benchmark/benchmark.h>

namespace {

QString storePath(const QTemporaryDir &dir)
{
    return dir.path() + QStringLiteral("/kv.sqlite");
}

void BM_SetData(benchmark::State &state)
{
    const QTemporaryDir dir;
    TovuSqliteKeyValueStore store(storePath(dir));
    // SQLite skips pages whose bytes did not change, so every write differs.
    const QByteArray blobs[] = {QByteArray(state.range(0), 'q'), QByteArray(state.range(0), 'r')};
    std::size_t next = 0;
    for (auto _ : state)
        benchmark::DoNotOptimize(store.setData("com.tovu.offline_responses", blobs[next++ % 2]));
    state.SetBytesProcessed(state.iterations() * state.range(0));
}
BENCHMARK(BM_SetData)->Arg(1 << 10)->Arg(100 << 10)->Arg(1 << 20)->Unit(benchmark::kMicrosecond);

void BM_Data(benchmark::State &state)
{
    const QTemporaryDir dir;
    TovuSqliteKeyValueStore store(storePath(dir));
    store.setData("com.tovu.offline_responses", QByteArray(state.range(0), 'q'));
    for (auto _ : state)
        benchmark::DoNotOptimize(store.data("com.tovu.offline_responses"));
    state.SetBytesProcessed(state.iterations() * state.range(0));
}
BENCHMARK(BM_Data)->Arg(1 << 10)->Arg(100 << 10)->Arg(1 << 20)->Unit(benchmark::kMicrosecond);

// A visit counter going up: the smallest write.
void BM_SetInteger(benchmark::State &state)
{
    const QTemporaryDir dir;
    TovuSqliteKeyValueStore store(storePath(dir));
    std::int64_t visits = 0;
    for (auto _ : state)
        benchmark::DoNotOptimize(store.setInteger("Visits:https://example.com/s/1", ++visits));
}
BENCHMARK(BM_SetInteger)->Unit(benchmark::kMicrosecond);

} // namespace
