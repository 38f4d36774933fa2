#include "Platform/calendar/CivilDate.h"

#include <cctz/civil_time.h>

#include <algorithm>

namespace platform {

bool isValid(CivilDate date) {
    return date.year >= -9999 && date.year <= 9999 && date.month >= 1 && date.month <= 12 &&
           date.day >= 1 && date.day <= daysInMonth(date.year, date.month);
}

int daysInMonth(int year, int month) {
    const cctz::civil_month first(year, month);
    return static_cast<int>(cctz::civil_day(first + 1) - cctz::civil_day(first));
}

int weekdayOf(CivilDate date) {
    const auto weekday = cctz::get_weekday(cctz::civil_day(date.year, date.month, date.day));
    return (static_cast<int>(weekday) + 1) % 7 + 1; // cctz counts from Monday = 0
}

std::int64_t daysSince1970(CivilDate date) {
    return cctz::civil_day(date.year, date.month, date.day) - cctz::civil_day();
}

CivilDate addingMonths(CivilDate date, int months) {
    const auto month = cctz::civil_month(date.year, date.month) + months;
    const auto year = static_cast<int>(month.year());
    return {year, month.month(), std::min(date.day, daysInMonth(year, month.month()))};
}

} // namespace platform
