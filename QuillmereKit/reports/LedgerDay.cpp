#include "QuillmereKit/reports/LedgerDay.h"

#include "QuillmereKit/calculation/LedgerDayWalk.h"

#include <algorithm>

namespace quillmere {

// The table tells the hour that a zone repeats across midnight from the day it follows.
LedgerDay LedgerDay::of(std::span<const LedgerRow> adjustments, platform::Instant date,
                        const platform::Calendar& calendar) {
    const platform::DayTable table(calendar, date, date + 86'400);
    LedgerDay day;
    for (const LedgerRow& row : LedgerDayWalk::within(adjustments, {table.start(0), table.end()})) {
        if (table.indexOf(row.date) == 0) {
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
