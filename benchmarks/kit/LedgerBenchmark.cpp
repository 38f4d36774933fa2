// The dashboard's figures over 100,000 changes of five years, each beside its limit: the same sum
// over bare packed columns, over structs as large as a whole record, and one scan a day.

#include "QuillmereKit/calculation/BalanceTrend.h"
#include "QuillmereKit/calculation/TimeBankCalculator.h"
#include "benchmarks/kit/FiveYears.h"

#include <benchmark/benchmark.h>

#include <array>
#include <vector>

namespace quillmere {

namespace {

using namespace benchmarks;

const std::vector<LedgerRow>& rows() {
    return fiveYears();
}

const Columns& columns() {
    static const Columns shared(rows());
    return shared;
}

double columnSum(double through) {
    const Columns& all = columns();
    double seconds = 0;
    for (std::size_t i = 0; i < all.dates.size(); ++i) {
        if (all.dates[i] <= through) {
            seconds += static_cast<double>(all.minutes[i]) * 60.0;
        }
    }
    return seconds;
}

void limitBalanceOverPackedColumns(benchmark::State& state) {
    for ([[maybe_unused]] auto _ : state) {
        benchmark::DoNotOptimize(columnSum(now.secondsSince1970));
    }
}
BENCHMARK(limitBalanceOverPackedColumns);

void limitBalanceOverWholeStructs(benchmark::State& state) {
    struct Whole {
        double date;
        std::int64_t minutes;
        std::array<char, 144> rest;
    };
    std::vector<Whole> all;
    for (const LedgerRow& row : rows()) {
        all.push_back({row.date.secondsSince1970, row.minutes, {}});
    }
    for ([[maybe_unused]] auto _ : state) {
        double seconds = 0;
        for (const Whole& whole : all) {
            if (whole.date <= now.secondsSince1970) {
                seconds += static_cast<double>(whole.minutes) * 60.0;
            }
        }
        benchmark::DoNotOptimize(seconds);
    }
}
BENCHMARK(limitBalanceOverWholeStructs);

void balanceNow(benchmark::State& state) {
    for ([[maybe_unused]] auto _ : state) {
        benchmark::DoNotOptimize(TimeBankCalculator::ledgerBalanceSeconds(rows(), 60, now));
    }
}
BENCHMARK(balanceNow);

void limitTrendOf90Scans(benchmark::State& state) {
    for ([[maybe_unused]] auto _ : state) {
        for (int back = 89; back >= 0; --back) {
            benchmark::DoNotOptimize(columnSum(now.secondsSince1970 - back * secondsADay));
        }
    }
}
BENCHMARK(limitTrendOf90Scans);

void trendOf90Days(benchmark::State& state) {
    const platform::Calendar calendar = berlin();
    for ([[maybe_unused]] auto _ : state) {
        benchmark::DoNotOptimize(
            BalanceTrend::series(rows(), 60, BalanceTrendRange::quarter, now, calendar));
    }
}
BENCHMARK(trendOf90Days);

void dayBalancesOfFiveYears(benchmark::State& state) {
    const platform::Calendar calendar = berlin();
    const platform::DateInterval fiveYears{now - 1825 * secondsADay, now};
    for ([[maybe_unused]] auto _ : state) {
        benchmark::DoNotOptimize(
            TimeBankCalculator::ledgerDayBalances(rows(), fiveYears, calendar));
    }
}
BENCHMARK(dayBalancesOfFiveYears);

} // namespace

} // namespace quillmere
