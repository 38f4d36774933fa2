// Merging as many records as an archive may hold, in one save: into an empty store, into one that
// holds older copies of them all, and into one that holds them already.

#include "Platform/store/Store.h"
#include "QuillmereKit/persistence/QuillmerePersistence.h"
#include "benchmarks/Folder.h"
#include "benchmarks/archive/MadeUpArchive.h"

#include <benchmark/benchmark.h>

#include <memory>

namespace quillmere::benchmarks {

namespace {

TimeBankArchive fullArchive(double age) {
    return madeUpArchive(TimeBankArchive::maximumWorkEntries,
                         TimeBankArchive::maximumBalanceAdjustments,
                         TimeBankArchive::maximumSchedules, TimeBankArchive::maximumSettings, age);
}

/// A store on disk that is gone at the end.
class NewStore {
public:
    void merge(const TimeBankArchive& archive) { archive.merge(*context_, now); }
    /// So that records already in the store are not in the context as well.
    void forgetRecords() { context_ = makeContext(); }

private:
    std::unique_ptr<platform::store::Context> makeContext() {
        return store_->makeContext({clock_, calendars_});
    }

    platform::ManualClock clock_{now};
    platform::FixedCalendarSource calendars_{
        {platform::TimeZone::utc(), platform::Region::fromLocale("C")}};
    Folder folder_;
    std::shared_ptr<platform::store::Store> store_ =
        QuillmerePersistence::makeContainer(false, false, false, {folder_.path(), folder_.path()});
    std::unique_ptr<platform::store::Context> context_ = makeContext();
};

void merge(benchmark::State& state, const TimeBankArchive* present,
           const TimeBankArchive& archive) {
    for ([[maybe_unused]] auto _ : state) {
        state.PauseTiming();
        {
            NewStore store;
            if (present != nullptr) {
                store.merge(*present);
                store.forgetRecords();
            }
            state.ResumeTiming();
            store.merge(archive);
            state.PauseTiming();
        }
        state.ResumeTiming();
    }
}

void mergeIntoEmptyStore(benchmark::State& state) {
    merge(state, nullptr, fullArchive(0));
}
BENCHMARK(mergeIntoEmptyStore)->Unit(benchmark::kMillisecond)->UseRealTime();

void mergeIntoFullStore(benchmark::State& state) {
    const TimeBankArchive older = fullArchive(60);
    merge(state, &older, fullArchive(0));
}
BENCHMARK(mergeIntoFullStore)->Unit(benchmark::kMillisecond)->UseRealTime();

void mergeWhatIsThereAlready(benchmark::State& state) {
    const TimeBankArchive archive = fullArchive(0);
    merge(state, &archive, archive);
}
BENCHMARK(mergeWhatIsThereAlready)->Unit(benchmark::kMillisecond)->UseRealTime();

} // namespace

} // namespace quillmere::benchmarks
