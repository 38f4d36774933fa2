// One change saved durably in a store of 100,000, beside an append to a file with fdatasync and
// beside the bare library.

#include "benchmarks/store/RawSqlite.h"

#include <benchmark/benchmark.h>
#include <fcntl.h>
#include <unistd.h>

#include <array>

namespace platform::store::benchmarks {
namespace {

void appendAndSync(benchmark::State& state) {
    const Folder folder;
    const int fd =
        ::open((folder / "log").c_str(), O_CREAT | O_WRONLY | O_APPEND | O_CLOEXEC, 0600);
    const std::array<char, 120> line{};
    for ([[maybe_unused]] auto _ : state) {
        if (::write(fd, line.data(), line.size()) < 0 || ::fdatasync(fd) != 0) {
            state.SkipWithError("cannot write");
            break;
        }
    }
    ::close(fd);
}
BENCHMARK(appendAndSync)->Unit(benchmark::kMicrosecond)->UseRealTime();

void saveRaw(benchmark::State& state) {
    const Folder folder;
    RawSqlite raw(folder / "Raw.sqlite");
    raw.createTable();
    sqlite3_stmt* insert = raw.prepareInsert();
    std::int64_t number = 0;
    for ([[maybe_unused]] auto _ : state) {
        RawSqlite::insert(insert, madeUp(number++));
    }
    sqlite3_finalize(insert);
}
BENCHMARK(saveRaw)->Unit(benchmark::kMicrosecond)->UseRealTime();

/// A copy of the large store, to write to.
std::shared_ptr<Store> openCopy(const Folder& folder) {
    std::filesystem::copy_file(largeStore(), folder / "Store.sqlite");
    return openStore(folder / "Store.sqlite");
}

void saveInsertion(benchmark::State& state) {
    const Folder folder;
    const auto store = openCopy(folder);
    const auto context = makeContext(*store);
    std::int64_t number = changeCount;
    for ([[maybe_unused]] auto _ : state) {
        context->insert(std::make_unique<Change>(madeUp(number++)));
        context->save();
    }
}
BENCHMARK(saveInsertion)->Unit(benchmark::kMicrosecond)->UseRealTime();

void saveFieldChange(benchmark::State& state) {
    const Folder folder;
    const auto store = openCopy(folder);
    const auto context = makeContext(*store);
    Change& change = *context->find<Change>(RowKey{changeCount / 2});
    for ([[maybe_unused]] auto _ : state) {
        change.setMinutes(change.values().minutes + 1);
        context->save();
    }
}
BENCHMARK(saveFieldChange)->Unit(benchmark::kMicrosecond)->UseRealTime();

void refreshWithoutNews(benchmark::State& state) {
    const auto store = openStore(largeStore());
    const auto context = makeContext(*store);
    for ([[maybe_unused]] auto _ : state) {
        context->refresh();
    }
}
BENCHMARK(refreshWithoutNews)->Unit(benchmark::kMicrosecond);

void refreshOneChange(benchmark::State& state) {
    const Folder folder;
    const auto store = openCopy(folder);
    const auto writer = makeContext(*store);
    const auto reader = makeContext(*store);
    Change& change = *writer->find<Change>(RowKey{changeCount / 2});
    (void)reader->find<Change>(RowKey{changeCount / 2});
    for ([[maybe_unused]] auto _ : state) {
        state.PauseTiming();
        change.setMinutes(change.values().minutes + 1);
        writer->save();
        state.ResumeTiming();
        reader->refresh();
    }
}
BENCHMARK(refreshOneChange)->Unit(benchmark::kMicrosecond)->Iterations(200);

} // namespace
} // namespace platform::store::benchmarks
