#pragma once

#include "Platform/calendar/Calendar.h"

namespace quillmere {

/// The lower bound of every calculation.
namespace TimeBankDateBounds {

inline constexpr int earliestCalculationYear = 2000;

/// Start of 1 January 2000 in the calendar's zone.
[[nodiscard]] platform::Instant earliestCalculationDate(const platform::Calendar& calendar);

/// Start of the day of `date`, not before the earliest calculation date and not after the start of
/// the day of `through`.
[[nodiscard]] platform::Instant normalizedCalculationStartDate(platform::Instant date,
                                                               platform::Instant through,
                                                               const platform::Calendar& calendar);

} // namespace TimeBankDateBounds

} // namespace quillmere
