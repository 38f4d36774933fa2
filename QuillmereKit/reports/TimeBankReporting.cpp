#include "QuillmereKit/reports/TimeBankReporting.h"

#include "QuillmereKit/calculation/LedgerDayWalk.h"

#include <algorithm>
#include <cmath>
#include <iterator>

namespace quillmere::TimeBankReporting {

TimeBankReport report(std::span<const DayBalance> days, platform::Instant containing,
                      ReportGranularity granularity, const platform::Calendar& calendar) {
    TimeBankReport report{period(granularity, containing, calendar), {}};
    std::ranges::copy_if(days, std::back_inserter(report.days),
                         [&](const DayBalance& day) { return report.interval.contains(day.date); });
    return report;
}

LedgerTotals ledgerTotals(std::span<const LedgerRow> adjustments, platform::DateInterval in) {
    LedgerTotals totals;
    for (const LedgerRow& row : LedgerDayWalk::within(adjustments, in)) {
        totals.add(row.minutes);
    }
    return totals;
}

HourRange chartHourRange(const TimeBankReport& report) {
    constexpr double headroom = 1.1;
    std::vector<double> hours;
    for (const DayBalance& day : report.days) {
        if (std::isfinite(day.balanceSeconds())) {
            hours.push_back(day.balanceSeconds() / 3600);
        }
    }
    if (hours.empty()) {
        return {0, 1};
    }
    const auto [low, high] = std::ranges::minmax(hours);
    if (low >= 0) {
        return {0, std::max(high * headroom, 1.0)};
    }
    return high <= 0 ? HourRange{std::min(low * headroom, -1.0), 0}
                     : HourRange{low * headroom, high * headroom};
}

} // namespace quillmere::TimeBankReporting
