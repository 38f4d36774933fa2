#pragma once

#include "Platform/calendar/Calendar.h"

#include <array>
#include <optional>
#include <vector>

namespace platform {

/// A month as a date picker draws it: seven columns that begin with the calendar's first weekday,
/// and a row for each week the month touches. Another month is `addingMonths(region, first(), n)`
/// in a new grid.
class MonthGrid {
public:
    struct Day {
        CivilDate date;
        /// Nothing for a date that the zone skipped: it cannot be chosen.
        std::optional<Instant> start;
    };

    /// The month that `date` belongs to. Precondition: isValid(date).
    MonthGrid(const Calendar& calendar, CivilDate date);

    /// The first date of the month.
    [[nodiscard]] CivilDate first() const { return days_.front().date; }
    /// Every date of the month, in order.
    [[nodiscard]] const std::vector<Day>& days() const { return days_; }
    /// The columns left empty before the first date: 0 … 6.
    [[nodiscard]] int leadingBlanks() const { return leadingBlanks_; }
    /// The rows that the month touches: 4 … 6.
    [[nodiscard]] int weekCount() const;

private:
    std::vector<Day> days_;
    int leadingBlanks_;
};

/// The weekdays (1 = Sunday … 7 = Saturday) over the seven columns of a grid.
[[nodiscard]] std::array<int, 7> weekdayColumns(const Calendar& calendar);

} // namespace platform
