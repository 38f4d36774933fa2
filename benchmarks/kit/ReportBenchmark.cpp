// A month's report and its CSV, out of 100,000 changes of five years and out of as many within the
// month, each beside its limit: one pass over bare packed columns with a bucket for each 24 hours.

#include "QuillmereKit/calculation/TimeBankCalculator.h"
#include "QuillmereKit/reports/TimeBankReporting.h"
#include "benchmarks/kit/FiveYears.h"

#include <benchmark/benchmark.h>

#include <array>
#include <cstdio>
#include <string>

namespace quillmere {

namespace {

using namespace benchmarks;

const std::vector<LedgerRow>& oneMonth() {
    static const std::vector<LedgerRow> shared = makeRows(27 * 86'400UL);
    return shared;
}

platform::DateInterval month() {
    static const platform::DateInterval shared = period(ReportGranularity::month, now, berlin());
    return shared;
}

using Buckets = std::array<LedgerTotals, 31>;

Buckets bucketsOf(const Columns& columns) {
    Buckets buckets{};
    const double start = month().start.secondsSince1970;
    const double end = month().end.secondsSince1970;
    for (std::size_t i = 0; i < columns.dates.size(); ++i) {
        if (columns.dates[i] >= start && columns.dates[i] < end) {
            const auto day = static_cast<std::size_t>((columns.dates[i] - start) / secondsADay);
            buckets[day].add(columns.minutes[i]);
        }
    }
    return buckets;
}

std::string linesOf(const Buckets& buckets) {
    std::string text;
    std::array<char, 80> line{};
    for (std::size_t day = 0; day < buckets.size(); ++day) {
        const LedgerTotals& totals = buckets[day];
        const int length =
            std::snprintf(line.data(), line.size(), "2026-05-%02zu,%.2f,%.2f,%.2f\n", day + 1,
                          totals.addedSeconds / 3600, totals.subtractedSeconds / 3600,
                          totals.netSeconds() / 3600);
        text.append(line.data(), static_cast<std::size_t>(length));
    }
    return text;
}

void limitMonth(benchmark::State& state, const std::vector<LedgerRow>& rows) {
    const Columns columns(rows);
    for ([[maybe_unused]] auto _ : state) {
        benchmark::DoNotOptimize(bucketsOf(columns));
    }
}

void report(benchmark::State& state, const std::vector<LedgerRow>& rows) {
    const platform::Calendar calendar = berlin();
    for ([[maybe_unused]] auto _ : state) {
        const auto interval = period(ReportGranularity::month, now, calendar);
        const auto days = TimeBankCalculator::ledgerDayBalances(rows, interval, calendar);
        benchmark::DoNotOptimize(
            TimeBankReporting::report(days, now, ReportGranularity::month, calendar)
                .balanceSeconds());
        benchmark::DoNotOptimize(TimeBankReporting::ledgerTotals(rows, interval));
    }
}

void limitCsv(benchmark::State& state, const std::vector<LedgerRow>& rows) {
    const Columns columns(rows);
    for ([[maybe_unused]] auto _ : state) {
        benchmark::DoNotOptimize(linesOf(bucketsOf(columns)));
    }
}

void csv(benchmark::State& state, const std::vector<LedgerRow>& rows) {
    const platform::Calendar calendar = berlin();
    for ([[maybe_unused]] auto _ : state) {
        benchmark::DoNotOptimize(TimeBankReporting::ledgerCSV(rows, month(), calendar));
    }
}

void limitMonthInOnePass(benchmark::State& state) {
    limitMonth(state, fiveYears());
}
BENCHMARK(limitMonthInOnePass);

void monthReport(benchmark::State& state) {
    report(state, fiveYears());
}
BENCHMARK(monthReport);

void limitMonthCsvInOnePass(benchmark::State& state) {
    limitCsv(state, fiveYears());
}
BENCHMARK(limitMonthCsvInOnePass);

void monthCsv(benchmark::State& state) {
    csv(state, fiveYears());
}
BENCHMARK(monthCsv);

void limitFullMonthInOnePass(benchmark::State& state) {
    limitMonth(state, oneMonth());
}
BENCHMARK(limitFullMonthInOnePass);

void fullMonthReport(benchmark::State& state) {
    report(state, oneMonth());
}
BENCHMARK(fullMonthReport);

void limitFullMonthCsvInOnePass(benchmark::State& state) {
    limitCsv(state, oneMonth());
}
BENCHMARK(limitFullMonthCsvInOnePass);

void fullMonthCsv(benchmark::State& state) {
    csv(state, oneMonth());
}
BENCHMARK(fullMonthCsv);

} // namespace

} // namespace quillmere
