// The scriptable action from opening the store to the published snapshot, in a time bank of 100,000
// changes, beside the same in a small one and beside the library that opens the file and inserts
// one row.

#include "Platform/entitlements/MemoryEntitlements.h"
#include "Platform/preferences/FilePreferences.h"
#include "Platform/store/Store.h"
#include "QuillmereKit/actions/AdjustTimeBankIntent.h"
#include "QuillmereKit/maintenance/StorePreparation.h"
#include "QuillmereKit/persistence/QuillmerePersistence.h"
#include "QuillmereKit/records/BalanceAdjustment.h"
#include "benchmarks/Folder.h"

#include <benchmark/benchmark.h>
#include <sqlite3.h>

#include <string>

namespace quillmere {

namespace {

class SilentWidgetCenter final : public WidgetCenter {
public:
    void reloadAllTimelines() override {}
};

/// A time bank on disk that was set up, with changes of past years.
class TimeBank {
public:
    explicit TimeBank(int changes) {
        const auto context = QuillmerePersistence::makeContainer(false, false, false, locations_)
                                 ->makeContext({clock_, calendars_});
        StorePreparation::completeOnboarding(*context, StorePreparation::prepare(*context));
        for (int i = 0; i < changes; ++i) {
            auto change = BalanceAdjustment::create(clock_);
            change->setDate(clock_.now() - static_cast<double>(i) * 1'600);
            change->setMinutes(i % 480 - 240);
            change->setNote("A note of ordinary length");
            context->insert(std::move(change));
        }
        context->save();
        (void)AdjustTimeBankIntent(30).perform(services()); // looks the new changes through
    }

    [[nodiscard]] AdjustTimeBankIntent::Services services() {
        return {entitlements_, locations_, clock_, calendars_, nullptr, preferences_, widgets_};
    }
    [[nodiscard]] std::string file() const { return folder_ / "Quillmere.sqlite"; }

private:
    platform::SystemClock clock_;
    platform::FixedCalendarSource calendars_{
        {platform::TimeZone::utc(), platform::Region::fromLocale("C")}};
    benchmarks::Folder folder_;
    StoreLocations locations_{folder_.path(), folder_.path()};
    platform::MemoryEntitlements entitlements_;
    platform::FilePreferences preferences_{folder_ / "preferences"};
    SilentWidgetCenter widgets_;
};

constexpr int many = 100'000;
constexpr int few = 100;
constexpr int runs = 50; // as a person might in a day

void perform(benchmark::State& state, int changes) {
    TimeBank timeBank(changes);
    for ([[maybe_unused]] auto _ : state) {
        benchmark::DoNotOptimize(AdjustTimeBankIntent(30).perform(timeBank.services()));
    }
}
BENCHMARK_CAPTURE(perform, adjustTimeBank, many)
    ->Name("adjustTimeBank")
    ->Iterations(runs)
    ->Unit(benchmark::kMillisecond)
    ->UseRealTime();
BENCHMARK_CAPTURE(perform, limitAdjustSmallTimeBank, few)
    ->Name("limitAdjustSmallTimeBank")
    ->Iterations(runs)
    ->Unit(benchmark::kMillisecond)
    ->UseRealTime();

void adjustTimeBankOnce(benchmark::State& state) {
    TimeBank timeBank(many);
    int run = 0;
    for ([[maybe_unused]] auto _ : state) {
        benchmark::DoNotOptimize(
            AdjustTimeBankIntent(30).performOnce(std::to_string(run++), timeBank.services()));
    }
}
BENCHMARK(adjustTimeBankOnce)->Iterations(runs)->Unit(benchmark::kMillisecond)->UseRealTime();

void limitOpenInsertCloseRaw(benchmark::State& state) {
    const TimeBank timeBank(many);
    for ([[maybe_unused]] auto _ : state) {
        sqlite3* database = nullptr;
        sqlite3_open(timeBank.file().c_str(), &database);
        if (sqlite3_exec(database,
                         "PRAGMA synchronous = FULL;"
                         "INSERT INTO balance_adjustment (revision, id, date, minutes, note,"
                         " kind_raw_value, created_at, modified_at)"
                         " VALUES (9, randomblob(16), 1e9, 30, '', 'manual', 1e9, 1e9)",
                         nullptr, nullptr, nullptr) != SQLITE_OK) {
            state.SkipWithError(sqlite3_errmsg(database));
        }
        sqlite3_close(database);
    }
}
BENCHMARK(limitOpenInsertCloseRaw)->Iterations(runs)->Unit(benchmark::kMillisecond)->UseRealTime();

} // namespace

} // namespace quillmere
