// What one change costs a list of 100,000 rows, beside moving the rows behind it in memory.

#include "Platform/store/LiveQuery.h"
#include "benchmarks/store/Change.h"

#include <benchmark/benchmark.h>

namespace platform::store::benchmarks {
namespace {

void moveRowsInMemory(benchmark::State& state) {
    std::vector<ChangeRow> rows(static_cast<std::size_t>(changeCount), ChangeRow{});
    for ([[maybe_unused]] auto _ : state) {
        rows.insert(rows.begin(), ChangeRow{});
        rows.erase(rows.begin());
        benchmark::DoNotOptimize(rows.data());
    }
}
BENCHMARK(moveRowsInMemory)->Unit(benchmark::kMicrosecond);

void insertAndRollBackListed(benchmark::State& state) {
    const auto store = openStore(largeStore());
    const auto context = makeContext(*store);
    LiveQuery<Change, ChangeRow> query(*context);
    query.load();
    for ([[maybe_unused]] auto _ : state) {
        context->insert(std::make_unique<Change>(madeUp(changeCount)));
        context->rollback();
    }
}
BENCHMARK(insertAndRollBackListed)->Unit(benchmark::kMicrosecond);

/// Half the history is written by another context and taken in at once.
void refreshHalf(benchmark::State& state) {
    const Folder folder;
    const auto store = openStore(folder / "Store.sqlite");
    const auto writer = makeContext(*store);
    addChanges(*writer, changeCount);
    writer->save();
    const auto changes = writer->fetch<Change>();
    const auto reader = makeContext(*store);
    LiveQuery<Change, ChangeRow> query(*reader);
    query.load();
    for ([[maybe_unused]] auto _ : state) {
        state.PauseTiming();
        for (std::size_t i = 0; i < changes.size(); i += 2) {
            changes[i]->setMinutes(changes[i]->values().minutes + 1);
        }
        writer->save();
        state.ResumeTiming();
        reader->refresh();
    }
}
BENCHMARK(refreshHalf)->Unit(benchmark::kMillisecond)->Iterations(5);

} // namespace
} // namespace platform::store::benchmarks
