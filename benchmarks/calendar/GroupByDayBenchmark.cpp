// Grouping 100,000 instants of ten years by local day: through a day table, through a calendar call
// for each, and through the two libraries below, called for each. Every way sums the same minutes.

#include "Platform/calendar/DayTable.h"

#include <benchmark/benchmark.h>
#include <cctz/time_zone.h>
#include <unicode/calendar.h>

#include <cmath>
#include <memory>
#include <random>
#include <unordered_map>
#include <vector>

namespace {

using platform::Instant;

constexpr const char* zoneName = "Europe/Berlin";
constexpr Instant firstInstant{1483225200}; // 2017-01-01 in Berlin
constexpr Instant lastInstant{1798757999};  // 2026-12-31

platform::Calendar berlin() {
    return {platform::TimeZone::named(zoneName).value(), {}};
}

const std::vector<Instant>& instants() {
    static const auto made = [] {
        std::vector<Instant> list(100'000);
        std::mt19937_64 random(1);
        std::uniform_real_distribution<double> anyTime(firstInstant.secondsSince1970,
                                                       lastInstant.secondsSince1970);
        for (auto& instant : list)
            instant = {anyTime(random)};
        return list;
    }();
    return made;
}

/// Sums by the start of day that `startOfDay` finds for each instant.
template <typename StartOfDay>
void groupByCall(benchmark::State& state, StartOfDay startOfDay) {
    const auto& list = instants();
    std::size_t days = 0;
    for ([[maybe_unused]] auto _ : state) {
        std::unordered_map<double, double> sums;
        for (const auto instant : list)
            sums[startOfDay(instant)] += 15;
        days = sums.size();
        benchmark::DoNotOptimize(sums);
    }
    state.counters["days"] = static_cast<double>(days);
}

void groupThroughDayTable(benchmark::State& state) {
    const auto& list = instants();
    const auto calendar = berlin();
    std::size_t days = 0;
    for ([[maybe_unused]] auto _ : state) {
        const platform::DayTable table(calendar, firstInstant, lastInstant);
        std::vector<double> sums(table.size());
        for (const auto instant : list)
            sums[table.indexOf(instant)] += 15;
        days = sums.size();
        benchmark::DoNotOptimize(sums);
    }
    state.counters["days"] = static_cast<double>(days);
}

void groupThroughCalendarPerCall(benchmark::State& state) {
    const auto calendar = berlin();
    groupByCall(state,
                [&](Instant instant) { return calendar.startOfDay(instant).secondsSince1970; });
}

void groupThroughCctzPerCall(benchmark::State& state) {
    cctz::time_zone zone;
    cctz::load_time_zone(zoneName, &zone);
    groupByCall(state, [&](Instant instant) {
        const auto seconds = static_cast<std::int64_t>(std::floor(instant.secondsSince1970));
        const cctz::time_point<cctz::seconds> time{cctz::seconds(seconds)};
        const auto start = cctz::convert(cctz::civil_day(cctz::convert(time, zone)), zone);
        return static_cast<double>(start.time_since_epoch().count());
    });
}

void groupThroughIcuPerCall(benchmark::State& state) {
    UErrorCode status = U_ZERO_ERROR;
    const std::unique_ptr<icu::Calendar> calendar(icu::Calendar::createInstance(
        icu::TimeZone::createTimeZone(zoneName), icu::Locale::getUS(), status));
    groupByCall(state, [&](Instant instant) {
        calendar->setTime(std::floor(instant.secondsSince1970) * 1000, status);
        for (const auto field : {UCAL_HOUR_OF_DAY, UCAL_MINUTE, UCAL_SECOND, UCAL_MILLISECOND})
            calendar->set(field, 0);
        return calendar->getTime(status) / 1000;
    });
}

BENCHMARK(groupThroughDayTable)->Unit(benchmark::kMillisecond);
BENCHMARK(groupThroughCalendarPerCall)->Unit(benchmark::kMillisecond);
BENCHMARK(groupThroughCctzPerCall)->Unit(benchmark::kMillisecond);
BENCHMARK(groupThroughIcuPerCall)->Unit(benchmark::kMillisecond);

} // namespace
