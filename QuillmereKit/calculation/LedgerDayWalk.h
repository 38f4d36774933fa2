#pragma once

#include "Platform/calendar/DateInterval.h"
#include "Platform/calendar/DayTable.h"
#include "QuillmereKit/records/BalanceAdjustment.h"
#include "QuillmereKit/records/LedgerRow.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <span>

namespace quillmere {

/// Visits the changes dated within an interval together with their days, without asking the
/// calendar for any of them. Rows must be in their own order, newest first; records come in any.
namespace LedgerDayWalk {

/// The part of the interval that the table's days cover.
[[nodiscard]] inline platform::DateInterval covered(platform::DateInterval interval,
                                                    const platform::DayTable& table) {
    return {std::max(interval.start, table.start(0)), std::min(interval.end, table.end())};
}

/// Those of the rows that are dated within the interval.
[[nodiscard]] inline std::span<const LedgerRow> within(std::span<const LedgerRow> rows,
                                                       platform::DateInterval interval) {
    const auto firstBefore = [&](platform::Instant instant) {
        return std::ranges::partition_point(
            rows, [instant](const LedgerRow& row) { return row.date >= instant; });
    };
    const auto first = firstBefore(interval.end);
    return {first, std::max(first, firstBefore(interval.start))};
}

/// Calls `visit(index, minutes)` with the index of the change's day in the table.
template <class Visit>
void visit(std::span<const LedgerRow> rows, platform::DateInterval interval,
           const platform::DayTable& table, Visit visit) {
    if (table.empty()) {
        return;
    }
    for (const LedgerRow& row : within(rows, covered(interval, table))) {
        visit(table.indexOf(row.date), row.minutes);
    }
}

template <class Visit>
void visit(std::span<BalanceAdjustment* const> adjustments, platform::DateInterval interval,
           const platform::DayTable& table, Visit visit) {
    if (table.empty()) {
        return;
    }
    const platform::DateInterval range = covered(interval, table);
    for (const BalanceAdjustment* adjustment : adjustments) {
        if (range.contains(adjustment->date())) {
            visit(table.indexOf(adjustment->date()), adjustment->minutes());
        }
    }
}

} // namespace LedgerDayWalk

} // namespace quillmere
