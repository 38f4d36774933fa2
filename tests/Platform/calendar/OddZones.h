#pragma once

#include "Platform/calendar/Calendar.h"

#include <string>

namespace platform {

/// Zones whose days are odd: midnights that do not exist or happen twice, skipped days, changes of
/// half an hour or at one minute past midnight, offsets with seconds, rules listed year by year.
inline constexpr const char* oddZones[] = {
    "America/Sao_Paulo",   "Africa/Cairo",       "Asia/Beirut",     "America/Havana",
    "Atlantic/Azores",     "Pacific/Apia",       "Africa/Monrovia", "America/St_Johns",
    "Asia/Gaza",           "America/Asuncion",   "Europe/Berlin",   "Australia/Lord_Howe",
    "Africa/Casablanca",   "America/Nuuk",       "Asia/Tehran",     "Pacific/Kwajalein",
    "America/Mexico_City", "Asia/Kathmandu",     "Europe/Dublin",   "America/New_York",
    "Antarctica/Troll",    "Pacific/Kiritimati",
};

inline constexpr Instant start1970{0};
inline constexpr Instant start2100{4102444800};

inline Calendar calendarIn(const char* zone, const char* region = "en_US") {
    return {TimeZone::named(zone).value(), Region::fromLocale(region)};
}

inline std::string textOf(CivilDate date) {
    return std::to_string(date.year) + '-' + std::to_string(date.month) + '-' +
           std::to_string(date.day);
}

} // namespace platform
