#pragma once

#include <compare>
#include <cstdint>

namespace platform {

/// A date of the proleptic Gregorian calendar, without time or zone.
struct CivilDate {
    int year = 1970;
    int month = 1; ///< 1 … 12
    int day = 1;   ///< 1 … 31

    friend constexpr auto operator<=>(const CivilDate&, const CivilDate&) = default;
};

/// Whether the date exists and its year is within −9999 … 9999.
[[nodiscard]] bool isValid(CivilDate date);

/// 28 … 31. Precondition: `month` is 1 … 12.
[[nodiscard]] int daysInMonth(int year, int month);

/// 1 = Sunday, 2 = Monday, … 7 = Saturday. Precondition: isValid(date).
[[nodiscard]] int weekdayOf(CivilDate date);

/// Days from 1970-01-01 to the date. Precondition: isValid(date).
[[nodiscard]] std::int64_t daysSince1970(CivilDate date);

/// The date `months` later (earlier when negative), on the last day of its month where the month is
/// too short. The result may leave the years above. Precondition: isValid(date).
[[nodiscard]] CivilDate addingMonths(CivilDate date, int months);

} // namespace platform
