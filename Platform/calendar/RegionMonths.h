#pragma once

#include "Platform/calendar/CivilDate.h"
#include "Platform/calendar/Region.h"

namespace platform {

// Months as the region's calendar system counts them: those of the Gregorian calendar for most
// regions, of the Persian or an Islamic one for others. A date far outside the years that ICU knows
// of such a calendar belongs to its Gregorian month. Precondition of all: isValid(date).

/// The first date of the month that `date` belongs to.
[[nodiscard]] CivilDate firstOfMonth(const Region& region, CivilDate date);

/// The number of the date within its month: 1 for the first.
[[nodiscard]] int dayOfMonth(const Region& region, CivilDate date);

/// As `addingMonths` of civil dates, by the region's months.
[[nodiscard]] CivilDate addingMonths(const Region& region, CivilDate date, int months);

} // namespace platform
