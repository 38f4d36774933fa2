#include "Platform/calendar/DayTable.h"
#include "QuillmereKit/calculation/TimeBankCalculator.h"
#include "QuillmereKit/records/BalanceAdjustment.h"
#include "QuillmereKit/records/LedgerRow.h"

#include <algorithm>
#include <limits>

namespace quillmere::TimeBankCalculator {

namespace {

using platform::DateInterval;

/// The days an interval touches; its end, and the second before it, belong to the day before.
platform::DayTable daysOf(DateInterval interval, const platform::Calendar& calendar) {
    constexpr platform::Instant none{std::numeric_limits<double>::quiet_NaN()};
    return {calendar, calendar.startOfDay(interval.start),
            calendar.addingSeconds(interval.end, -1).value_or(none)};
}

std::vector<DayBalance> emptyDays(const platform::DayTable& table) {
    std::vector<DayBalance> days(table.size());
    for (std::size_t i = 0; i < days.size(); ++i) {
        days[i].date = table.start(i);
    }
    return days;
}

void addChange(std::vector<DayBalance>& days, const platform::DayTable& table,
               platform::Instant date, std::int64_t minutes) {
    days[table.indexOf(date)].adjustmentSeconds += static_cast<double>(minutes) * 60.0;
}

/// Where the day table's end lies before the interval's, by less than a second, changes in between
/// belong to a day that is not asked for.
DateInterval listed(DateInterval interval, const platform::DayTable& table) {
    return {std::max(interval.start, table.start(0)), std::min(interval.end, table.end())};
}

} // namespace

std::vector<DayBalance> ledgerDayBalances(std::span<const LedgerRow> adjustments, DateInterval in,
                                          const platform::Calendar& calendar) {
    const platform::DayTable table = daysOf(in, calendar);
    std::vector<DayBalance> days = emptyDays(table);
    if (days.empty()) {
        return days;
    }
    const DateInterval range = listed(in, table);
    const auto firstBefore = [&](platform::Instant instant) {
        return std::ranges::partition_point(
            adjustments, [instant](const LedgerRow& row) { return row.date >= instant; });
    };
    const auto end = firstBefore(range.start);
    for (auto row = firstBefore(range.end); row < end; ++row) {
        addChange(days, table, row->date, row->minutes);
    }
    return days;
}

std::vector<DayBalance> ledgerDayBalances(std::span<BalanceAdjustment* const> adjustments,
                                          DateInterval in, const platform::Calendar& calendar) {
    const platform::DayTable table = daysOf(in, calendar);
    std::vector<DayBalance> days = emptyDays(table);
    if (days.empty()) {
        return days;
    }
    const DateInterval range = listed(in, table);
    for (const BalanceAdjustment* adjustment : adjustments) {
        if (range.contains(adjustment->date())) {
            addChange(days, table, adjustment->date(), adjustment->minutes());
        }
    }
    return days;
}

} // namespace quillmere::TimeBankCalculator
