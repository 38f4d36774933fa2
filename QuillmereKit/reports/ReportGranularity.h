#pragma once

#include "Platform/calendar/Calendar.h"

#include <array>
#include <optional>
#include <string_view>

namespace quillmere {

/// How much a report shows at once.
enum class ReportGranularity { week, month };

/// "week" or "month".
[[nodiscard]] std::string_view rawValue(ReportGranularity granularity);

/// The calendar's week (from its first weekday) or month that contains the instant, the end being
/// the start of the next one. Of zero length at the instant where it lies outside the calendar's
/// range or is not a number.
[[nodiscard]] platform::DateInterval period(ReportGranularity granularity,
                                            platform::Instant containing,
                                            const platform::Calendar& calendar);

/// The instant `count` weeks or months later (earlier when negative), by the rules of
/// `Calendar::addingDays` and `addingMonths`; nothing where the calendar has no such date.
[[nodiscard]] std::optional<platform::Instant> addingPeriods(ReportGranularity granularity,
                                                             platform::Instant instant, int count,
                                                             const platform::Calendar& calendar);

namespace ReportGranularities {

inline constexpr std::array all{ReportGranularity::week, ReportGranularity::month};

/// The granularity with exactly this raw value.
[[nodiscard]] std::optional<ReportGranularity> fromRawValue(std::string_view rawValue);

} // namespace ReportGranularities

} // namespace quillmere
