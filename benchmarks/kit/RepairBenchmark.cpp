// What every start and every change pays for a store of 100,000 changes that is in order, beside a
// scan of all its rows.

#include "Platform/store/Store.h"
#include "QuillmereKit/maintenance/StorePreparation.h"
#include "QuillmereKit/persistence/QuillmerePersistence.h"
#include "QuillmereKit/records/BalanceAdjustment.h"
#include "QuillmereKit/transactions/TimeBankTransactionController.h"
#include "QuillmereKit/widget/WidgetSnapshotBuilder.h"
#include "benchmarks/Folder.h"

#include <benchmark/benchmark.h>

#include <memory>

namespace quillmere {

namespace {

constexpr std::size_t changeCount = 100'000;

/// A store on disk with a completed setup, repaired once.
class LargeStore {
public:
    LargeStore() {
        const auto context = makeContext();
        TimeBankSettings& settings = StorePreparation::prepare(*context);
        StorePreparation::completeOnboarding(*context, settings);
        for (std::size_t i = 0; i < changeCount; ++i) {
            auto change = BalanceAdjustment::create(clock_);
            change->setDate(clock_.now() - static_cast<double>(i) * 1'600);
            change->setMinutes(static_cast<std::int64_t>(i % 480) - 240);
            change->setNote("A note of ordinary length");
            context->insert(std::move(change));
        }
        context->save();
        StorePreparation::prepare(*context);
    }

    [[nodiscard]] std::unique_ptr<platform::store::Context> makeContext() const {
        return store_->makeContext({clock_, calendars_});
    }
    [[nodiscard]] platform::Instant now() const { return clock_.now(); }

private:
    platform::SystemClock clock_;
    platform::FixedCalendarSource calendars_{
        {platform::TimeZone::utc(), platform::Region::fromLocale("C")}};
    benchmarks::Folder folder_;
    std::shared_ptr<platform::store::Store> store_ =
        QuillmerePersistence::makeContainer(false, false, false, {folder_.path(), folder_.path()});
};

const LargeStore& largeStore() {
    static const LargeStore shared;
    return shared;
}

void limitScanOfAllRows(benchmark::State& state) {
    const auto context = largeStore().makeContext();
    for ([[maybe_unused]] auto _ : state) {
        std::int64_t minutes = 0;
        context->scan<BalanceAdjustment>(
            {}, [&](platform::store::RowKey, const auto& values) { minutes += values.minutes; });
        benchmark::DoNotOptimize(minutes);
    }
}
BENCHMARK(limitScanOfAllRows)->Unit(benchmark::kMillisecond);

void repairOfARepairedStore(benchmark::State& state) {
    const LargeStore& store = largeStore();
    for ([[maybe_unused]] auto _ : state) {
        const auto context = store.makeContext();
        benchmark::DoNotOptimize(StorePreparation::prepare(*context).id());
    }
}
BENCHMARK(repairOfARepairedStore)->Unit(benchmark::kMillisecond);

void recordOneChange(benchmark::State& state) {
    const auto context = largeStore().makeContext();
    for ([[maybe_unused]] auto _ : state) {
        benchmark::DoNotOptimize(TimeBankTransactionController::record(30, largeStore().now(),
                                                                       "note", "manual", *context));
    }
}
BENCHMARK(recordOneChange)->Unit(benchmark::kMillisecond);

void widgetSnapshot(benchmark::State& state) {
    const LargeStore& store = largeStore();
    const auto context = store.makeContext();
    for ([[maybe_unused]] auto _ : state) {
        benchmark::DoNotOptimize(WidgetSnapshotBuilder::make(*context, store.now()));
    }
}
BENCHMARK(widgetSnapshot)->Unit(benchmark::kMillisecond);

} // namespace

} // namespace quillmere
