#include "QuillmereKit/calculation/LedgerDayWalk.h"
#include "QuillmereKit/calculation/TimeBankCalculator.h"

#include <limits>

namespace quillmere::TimeBankCalculator {

namespace {

using platform::DateInterval;

/// The days an interval touches; its end, and the second before it, belong to the day before. So
/// where the interval ends less than a second after a midnight, changes in between belong to a day
/// that is not asked for.
platform::DayTable daysOf(DateInterval interval, const platform::Calendar& calendar) {
    constexpr platform::Instant none{std::numeric_limits<double>::quiet_NaN()};
    return {calendar, calendar.startOfDay(interval.start),
            calendar.addingSeconds(interval.end, -1).value_or(none)};
}

template <class Changes>
std::vector<DayBalance> balances(std::span<Changes> adjustments, DateInterval interval,
                                 const platform::Calendar& calendar) {
    const platform::DayTable table = daysOf(interval, calendar);
    std::vector<DayBalance> days(table.size());
    for (std::size_t i = 0; i < days.size(); ++i) {
        days[i].date = table.start(i);
    }
    LedgerDayWalk::visit(adjustments, interval, table,
                         [&](std::size_t index, std::int64_t minutes) {
                             days[index].adjustmentSeconds += static_cast<double>(minutes) * 60.0;
                         });
    return days;
}

} // namespace

std::vector<DayBalance> ledgerDayBalances(std::span<const LedgerRow> adjustments, DateInterval in,
                                          const platform::Calendar& calendar) {
    return balances(adjustments, in, calendar);
}

std::vector<DayBalance> ledgerDayBalances(std::span<BalanceAdjustment* const> adjustments,
                                          DateInterval in, const platform::Calendar& calendar) {
    return balances(adjustments, in, calendar);
}

} // namespace quillmere::TimeBankCalculator
