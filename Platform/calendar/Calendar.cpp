#include "Platform/calendar/Calendar.h"

#include "Platform/calendar/CivilLookup.h"
#include "Platform/calendar/RegionMonths.h"

#include <algorithm>
#include <cmath>

namespace platform {
namespace {

using CivilLookup = cctz::time_zone::civil_lookup;

bool isInRange(Instant instant) {
    return instant >= Calendar::earliest && instant <= Calendar::latest;
}

cctz::civil_second civilTime(const TimeZone& zone, Instant instant) {
    return zone.rules().lookup(clampedSeconds(instant)).cs;
}

bool exists(const cctz::civil_day& day, const cctz::time_zone& rules) {
    return cctz::civil_day(rules.lookup(firstSecondFrom(day, rules)).cs) == day;
}

/// The instant of a civil time; `backwards` is the direction in which a skipped date is left.
ZoneSeconds resolve(const cctz::civil_second& time, const cctz::time_zone& rules, bool backwards) {
    const auto found = rules.lookup(time);
    const bool leftBackwards =
        backwards && found.kind == CivilLookup::SKIPPED && !exists(cctz::civil_day(time), rules);
    return leftBackwards ? found.post : found.pre;
}

/// Moves the instant to another day, keeping its wall-clock time and its fraction of a second.
std::optional<Instant> moved(const TimeZone& zone, Instant instant, const cctz::civil_day& target) {
    const auto second = clampedSeconds(instant);
    const auto from = zone.rules().lookup(second).cs;
    const auto fromDay = cctz::civil_day(from);
    if (target == fromDay)
        return instant;
    const auto time = from + 86400 * (target - fromDay);
    const Instant result =
        instantOf(resolve(time, zone.rules(), target < fromDay)) + (instant - instantOf(second));
    return isInRange(result) ? std::optional(result) : std::nullopt;
}

} // namespace

ZoneSeconds clampedSeconds(Instant instant) {
    const double seconds = std::isnan(instant.secondsSince1970) ? 0 : instant.secondsSince1970;
    const double clamped =
        std::clamp(seconds, Calendar::earliest.secondsSince1970, Calendar::latest.secondsSince1970);
    return ZoneSeconds(cctz::seconds(static_cast<std::int64_t>(std::floor(clamped))));
}

ZoneSeconds firstSecondFrom(const cctz::civil_day& day, const cctz::time_zone& rules) {
    const auto midnight = rules.lookup(cctz::civil_second(day));
    return midnight.kind == CivilLookup::SKIPPED ? midnight.trans : midnight.pre;
}

Calendar::Calendar(TimeZone zone, Region region)
    : zone_(std::move(zone)), region_(std::move(region)) {
}

Instant Calendar::startOfDay(Instant instant) const {
    return instantOf(firstSecondFrom(cctz::civil_day(civilTime(zone_, instant)), zone_.rules()));
}

std::optional<Instant> Calendar::startOfDay(CivilDate date) const {
    if (!isValid(date) || date < civilDate(earliest) || date > civilDate(latest) ||
        !exists(dayOf(date), zone_.rules()))
        return std::nullopt;
    return instantOf(firstSecondFrom(dayOf(date), zone_.rules()));
}

std::optional<Instant> Calendar::addingDays(Instant instant, int days) const {
    if (!isInRange(instant))
        return std::nullopt;
    return moved(zone_, instant, cctz::civil_day(civilTime(zone_, instant)) + days);
}

std::optional<Instant> Calendar::addingMonths(Instant instant, int months) const {
    if (!isInRange(instant))
        return std::nullopt;
    return moved(zone_, instant,
                 dayOf(platform::addingMonths(region_, civilDate(instant), months)));
}

std::optional<Instant> Calendar::atDate(CivilDate date, Instant time) const {
    return isInRange(time) && startOfDay(date) ? moved(zone_, time, dayOf(date)) : std::nullopt;
}

std::optional<Instant> Calendar::addingSeconds(Instant instant, double seconds) const {
    const Instant result = instant + seconds;
    return std::isfinite(result.secondsSince1970) ? std::optional(result) : std::nullopt;
}

DateInterval Calendar::weekInterval(Instant instant) const {
    const auto day = cctz::civil_day(civilTime(zone_, instant));
    const auto first = day - (weekdayOf(dateOf(day)) - firstWeekday() + 7) % 7;
    return {instantOf(firstSecondFrom(first, zone_.rules())),
            instantOf(firstSecondFrom(first + 7, zone_.rules()))};
}

DateInterval Calendar::monthInterval(Instant instant) const {
    const CivilDate first = firstOfMonth(region_, civilDate(instant));
    const CivilDate next = firstOfMonth(region_, platform::addingMonths(region_, first, 1));
    return {instantOf(firstSecondFrom(dayOf(first), zone_.rules())),
            instantOf(firstSecondFrom(dayOf(next), zone_.rules()))};
}

CivilDate Calendar::civilDate(Instant instant) const {
    return dateOf(cctz::civil_day(civilTime(zone_, instant)));
}

std::int64_t Calendar::civilSeconds(Instant instant) const {
    return civilTime(zone_, instant) - cctz::civil_second();
}

int Calendar::weekday(Instant instant) const {
    return weekdayOf(civilDate(instant));
}

bool Calendar::isSameDay(Instant a, Instant b) const {
    return civilDate(a) == civilDate(b);
}

} // namespace platform
