#pragma once

#include "Platform/calendar/Calendar.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>

namespace quillmere {

/// Planned minutes of the days of a week, Monday … Sunday.
using WeekdayMinutes = std::array<std::int64_t, 7>;

namespace WeekdayPlan {

inline constexpr std::int64_t maximumMinutes = 1440;
inline constexpr WeekdayMinutes defaultWeek{480, 480, 480, 480, 480, 0, 0};

/// Seven values clamped to 0 … 1440: those given, then `padding` for the days they do not reach.
[[nodiscard]] WeekdayMinutes clamped(std::span<const std::int64_t> minutes,
                                     const WeekdayMinutes& padding = {});

/// Position of the instant's day, in the calendar's zone: 0 = Monday … 6 = Sunday.
[[nodiscard]] std::size_t weekdayIndex(platform::Instant instant,
                                       const platform::Calendar& calendar);

/// The instant's day in the plan, clamped to 0 … 1440.
[[nodiscard]] std::int64_t scheduledMinutes(const WeekdayMinutes& plan, platform::Instant on,
                                            const platform::Calendar& calendar);

} // namespace WeekdayPlan

} // namespace quillmere
