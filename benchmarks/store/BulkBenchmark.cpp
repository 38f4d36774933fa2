// Opening a store of 100,000 changes and reading it, and writing many at once; each beside the bare
// library doing the same raw work.

#include "Platform/store/LiveQuery.h"
#include "benchmarks/store/RawSqlite.h"

#include <benchmark/benchmark.h>

#include <cstring>

namespace platform::store::benchmarks {
namespace {

constexpr std::int64_t mergedCount = 210'100;

struct RawChange {
    std::int64_t key;
    Uuid::Bytes id;
    double date;
    std::int64_t minutes;
    std::string note;
    std::string kind;
    double createdAt;
    double modifiedAt;
};

std::string text(sqlite3_stmt* row, int column) {
    return {reinterpret_cast<const char*>(sqlite3_column_text(row, column)),
            static_cast<std::size_t>(sqlite3_column_bytes(row, column))};
}

RawChange rawChange(sqlite3_stmt* row) {
    RawChange change{.key = sqlite3_column_int64(row, 0),
                     .id = {},
                     .date = sqlite3_column_double(row, 2),
                     .minutes = sqlite3_column_int64(row, 3),
                     .note = text(row, 4),
                     .kind = text(row, 5),
                     .createdAt = sqlite3_column_double(row, 6),
                     .modifiedAt = sqlite3_column_double(row, 7)};
    std::memcpy(change.id.data(), sqlite3_column_blob(row, 1), change.id.size());
    return change;
}

void openAndScanRaw(benchmark::State& state) {
    const std::filesystem::path& file = largeStore();
    for ([[maybe_unused]] auto _ : state) {
        RawSqlite raw(file);
        sqlite3_stmt* rows = raw.prepare("SELECT row_key, id, date, minutes, note, kind,"
                                         " created_at, modified_at FROM change");
        std::vector<RawChange> changes;
        while (sqlite3_step(rows) == SQLITE_ROW) {
            changes.push_back(rawChange(rows));
        }
        sqlite3_finalize(rows);
        benchmark::DoNotOptimize(changes.data());
    }
}
BENCHMARK(openAndScanRaw)->Unit(benchmark::kMillisecond)->UseRealTime();

void openAndReadRows(benchmark::State& state) {
    const std::filesystem::path& file = largeStore();
    for ([[maybe_unused]] auto _ : state) {
        const auto store = openStore(file);
        const auto loaded = LiveQuery<Change, ChangeRow>::readRows(*store);
        benchmark::DoNotOptimize(loaded.rows.data());
    }
}
BENCHMARK(openAndReadRows)->Unit(benchmark::kMillisecond)->UseRealTime();

void openAndFetchRecords(benchmark::State& state) {
    const std::filesystem::path& file = largeStore();
    for ([[maybe_unused]] auto _ : state) {
        const auto store = openStore(file);
        const auto context = makeContext(*store);
        benchmark::DoNotOptimize(context->fetch<Change>().size());
    }
}
BENCHMARK(openAndFetchRecords)->Unit(benchmark::kMillisecond)->UseRealTime();

void openAndSumRaw(benchmark::State& state) {
    const std::filesystem::path& file = largeStore();
    for ([[maybe_unused]] auto _ : state) {
        RawSqlite raw(file);
        sqlite3_stmt* row = raw.prepare("SELECT sum(minutes) FROM change WHERE date <= 2e9");
        sqlite3_step(row);
        benchmark::DoNotOptimize(sqlite3_column_int64(row, 0));
        sqlite3_finalize(row);
    }
}
BENCHMARK(openAndSumRaw)->Unit(benchmark::kMillisecond)->UseRealTime();

void openAndSum(benchmark::State& state) {
    const std::filesystem::path& file = largeStore();
    for ([[maybe_unused]] auto _ : state) {
        const auto store = openStore(file);
        const auto context = makeContext(*store);
        benchmark::DoNotOptimize(context->sum<Change, &ChangeValues::minutes>(
            Filter<Change>{}.where<&ChangeValues::date>(Comparison::lessOrEqual, Instant{2e9})));
    }
}
BENCHMARK(openAndSum)->Unit(benchmark::kMillisecond)->UseRealTime();

void verifyWholeFile(benchmark::State& state) {
    const auto store = openStore(largeStore());
    for ([[maybe_unused]] auto _ : state) {
        store->verify();
    }
}
BENCHMARK(verifyWholeFile)->Unit(benchmark::kMillisecond)->UseRealTime();

void insertManyRaw(benchmark::State& state) {
    for ([[maybe_unused]] auto _ : state) {
        state.PauseTiming();
        const Folder folder;
        {
            RawSqlite raw(folder / "Raw.sqlite");
            raw.createTable();
            state.ResumeTiming();
            raw.insertMany(mergedCount);
            state.PauseTiming();
        }
        state.ResumeTiming();
    }
}
BENCHMARK(insertManyRaw)->Unit(benchmark::kMillisecond)->UseRealTime();

/// Writing a row again costs the bare library more than inserting it: its revision leaves one place
/// of the index and goes to another.
void updateManyRaw(benchmark::State& state) {
    for ([[maybe_unused]] auto _ : state) {
        state.PauseTiming();
        const Folder folder;
        {
            RawSqlite raw(folder / "Raw.sqlite");
            raw.createTable();
            raw.insertMany(mergedCount);
            state.ResumeTiming();
            raw.updateMany(mergedCount);
            state.PauseTiming();
        }
        state.ResumeTiming();
    }
}
BENCHMARK(updateManyRaw)->Unit(benchmark::kMillisecond)->UseRealTime();

void insertMany(benchmark::State& state) {
    for ([[maybe_unused]] auto _ : state) {
        state.PauseTiming();
        const Folder folder;
        auto store = openStore(folder / "Store.sqlite");
        auto context = makeContext(*store);
        state.ResumeTiming();
        addChanges(*context, mergedCount);
        context->save();
        state.PauseTiming();
        context.reset();
        store.reset();
        state.ResumeTiming();
    }
}
BENCHMARK(insertMany)->Unit(benchmark::kMillisecond)->UseRealTime();

} // namespace
} // namespace platform::store::benchmarks
