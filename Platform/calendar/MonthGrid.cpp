#include "Platform/calendar/MonthGrid.h"

#include "Platform/calendar/CivilLookup.h"
#include "Platform/calendar/RegionMonths.h"

#include <cstddef>

namespace platform {

MonthGrid::MonthGrid(const Calendar& calendar, CivilDate date) {
    const CivilDate first = firstOfMonth(calendar.region(), date);
    leadingBlanks_ = (weekdayOf(first) - calendar.firstWeekday() + 7) % 7;
    const auto next = dayOf(addingMonths(calendar.region(), first, 1));
    for (auto day = dayOf(first); day < next; ++day)
        days_.push_back({dateOf(day), calendar.startOfDay(dateOf(day))});
}

int MonthGrid::weekCount() const {
    return (leadingBlanks_ + static_cast<int>(days_.size()) + 6) / 7;
}

std::array<int, 7> weekdayColumns(const Calendar& calendar) {
    std::array<int, 7> columns{};
    for (int column = 0; column < 7; ++column)
        columns[static_cast<std::size_t>(column)] = (calendar.firstWeekday() - 1 + column) % 7 + 1;
    return columns;
}

} // namespace platform
