#include "QuillmereKit/reports/LedgerDay.h"

#include "QuillmereKit/calculation/LedgerDayWalk.h"

#include <algorithm>

namespace quillmere {

LedgerDay LedgerDay::of(std::span<const LedgerRow> adjustments, platform::Instant date,
                        const platform::Calendar& calendar) {
    constexpr double longestDay = 49 * 3600.0; // a date that a zone repeated, with its hour
    const platform::Instant start = calendar.startOfDay(date);
    LedgerDay day;
    for (const LedgerRow& row : LedgerDayWalk::within(adjustments, {start, start + longestDay})) {
        if (calendar.isSameDay(row.date, start)) {
            day.totals.add(row.minutes);
            if (row.isListed) {
                day.listed.push_back(row);
            }
        }
    }
    std::ranges::reverse(day.listed);
    return day;
}

} // namespace quillmere
