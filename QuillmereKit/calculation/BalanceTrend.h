#pragma once

#include "Platform/calendar/Calendar.h"
#include "QuillmereKit/calculation/BalanceTrendRange.h"

#include <cstdint>
#include <span>
#include <vector>

namespace quillmere {

struct LedgerRow;

/// The figures of the balance history chart, in seconds.
namespace BalanceTrend {

/// The balance at the end of each day of the range, oldest first; today's is the balance now. Days
/// the calendar cannot form are left out. Rows newest first.
[[nodiscard]] std::vector<double> series(std::span<const LedgerRow> adjustments,
                                         std::int64_t startingBalanceMinutes,
                                         BalanceTrendRange range, platform::Instant now,
                                         const platform::Calendar& calendar);

struct ValueDomain {
    double lower = 0;
    double upper = 0;

    friend bool operator==(const ValueDomain&, const ValueDomain&) = default;
};

/// The vertical range to draw: whole hours, zero inside, at least a quarter of an hour of margin.
[[nodiscard]] ValueDomain valueDomain(std::span<const double> values);

} // namespace BalanceTrend

} // namespace quillmere
