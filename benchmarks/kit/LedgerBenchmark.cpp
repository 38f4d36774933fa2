// The dashboard's figures over 100,000 changes of five years, each beside its limit: the same sum
// over bare packed columns, over structs as large as a whole record, and one scan a day.

#include "QuillmereKit/calculation/BalanceTrend.h"
#include "QuillmereKit/calculation/TimeBankCalculator.h"
#include "QuillmereKit/records/LedgerRow.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <array>
#include <random>
#include <vector>

namespace quillmere {

namespace {

using platform::Instant;

constexpr Instant now{1'780'000'000};
constexpr double secondsADay = 86'400;
constexpr std::size_t changeCount = 100'000;

platform::Calendar berlin() {
    return {platform::TimeZone::named("Europe/Berlin").value(),
            platform::Region::fromLocale("de_DE")};
}

std::vector<LedgerRow> makeRows() {
    std::mt19937_64 random(1);
    std::vector<LedgerRow> rows;
    BalanceAdjustmentValues values;
    for (std::size_t i = 0; i < changeCount; ++i) {
        values.id = platform::Uuid::random();
        values.date = now - static_cast<double>(random() % 157'680'000);
        values.minutes = static_cast<std::int64_t>(random() % 2881) - 1440;
        rows.push_back(LedgerRow::make(platform::store::RowRef{1}, values).value());
    }
    std::ranges::sort(rows, [](const LedgerRow& a, const LedgerRow& b) { return a < b; });
    return rows;
}

const std::vector<LedgerRow>& rows() {
    static const std::vector<LedgerRow> shared = makeRows();
    return shared;
}

/// The columns a sum needs and nothing else.
struct Columns {
    std::vector<double> dates;
    std::vector<std::int64_t> minutes;
};

const Columns& columns() {
    static const Columns shared = [] {
        Columns made;
        for (const LedgerRow& row : rows()) {
            made.dates.push_back(row.date.secondsSince1970);
            made.minutes.push_back(row.minutes);
        }
        return made;
    }();
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
    for (auto _ : state) {
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
    for (auto _ : state) {
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
    for (auto _ : state) {
        benchmark::DoNotOptimize(TimeBankCalculator::ledgerBalanceSeconds(rows(), 60, now));
    }
}
BENCHMARK(balanceNow);

void limitTrendOf90Scans(benchmark::State& state) {
    for (auto _ : state) {
        for (int back = 89; back >= 0; --back) {
            benchmark::DoNotOptimize(columnSum(now.secondsSince1970 - back * secondsADay));
        }
    }
}
BENCHMARK(limitTrendOf90Scans);

void trendOf90Days(benchmark::State& state) {
    const platform::Calendar calendar = berlin();
    for (auto _ : state) {
        benchmark::DoNotOptimize(
            BalanceTrend::series(rows(), 60, BalanceTrendRange::quarter, now, calendar));
    }
}
BENCHMARK(trendOf90Days);

void dayBalancesOfFiveYears(benchmark::State& state) {
    const platform::Calendar calendar = berlin();
    const platform::DateInterval fiveYears{now - 1825 * secondsADay, now};
    for (auto _ : state) {
        benchmark::DoNotOptimize(
            TimeBankCalculator::ledgerDayBalances(rows(), fiveYears, calendar));
    }
}
BENCHMARK(dayBalancesOfFiveYears);

} // namespace

} // namespace quillmere
