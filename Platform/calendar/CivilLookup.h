#pragma once

#include "Platform/base/Instant.h"
#include "Platform/calendar/CivilDate.h"

#include <cctz/civil_time.h>
#include <cctz/time_zone.h>

#include <cstdint>
#include <limits>

namespace platform {

// Between our values and those of cctz. For use inside this folder.

using ZoneSeconds = cctz::time_point<cctz::seconds>;

/// The last whole second at or before the instant, which is first brought into the calendar's
/// range.
[[nodiscard]] ZoneSeconds clampedSeconds(Instant instant);

[[nodiscard]] inline Instant instantOf(ZoneSeconds seconds) {
    return {static_cast<double>(seconds.time_since_epoch().count())};
}

[[nodiscard]] inline CivilDate dateOf(const cctz::civil_day& day) {
    return {static_cast<int>(day.year()), day.month(), day.day()};
}

[[nodiscard]] inline cctz::civil_day dayOf(CivilDate date) {
    return cctz::civil_day(date.year, date.month, date.day);
}

/// The first instant that bears the date or, where the zone skipped it, a later one.
[[nodiscard]] ZoneSeconds firstSecondFrom(const cctz::civil_day& day, const cctz::time_zone& rules);

} // namespace platform
