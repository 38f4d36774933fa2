#include "Platform/calendar/MonthGrid.h"

#include <cstddef>

namespace platform {

MonthGrid::MonthGrid(const Calendar& calendar, CivilDate date) {
    date.day = 1;
    leadingBlanks_ = (weekdayOf(date) - calendar.firstWeekday() + 7) % 7;
    const int count = daysInMonth(date.year, date.month);
    days_.reserve(static_cast<std::size_t>(count));
    for (; date.day <= count; ++date.day)
        days_.push_back({date, calendar.startOfDay(date)});
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
