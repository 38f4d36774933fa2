#include "Platform/calendar/RegionMonths.h"

#include "Platform/calendar/CivilLookup.h"

#include <unicode/calendar.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <memory>
#include <optional>

namespace platform {
namespace {

constexpr double millisecondsPerDay = 86'400'000;
constexpr int longestMonth = 32;

/// These differ in their years only.
bool hasGregorianMonths(const Region& region) {
    constexpr std::array systems{"gregorian", "buddhist", "japanese", "roc", "iso8601"};
    return std::ranges::find(systems, region.calendarSystem()) != systems.end();
}

/// The region's calendar on this date; null where ICU has none.
std::unique_ptr<icu::Calendar> calendarAt(const Region& region, CivilDate date) {
    UErrorCode status = U_ZERO_ERROR;
    std::unique_ptr<icu::Calendar> calendar(icu::Calendar::createInstance(
        icu::TimeZone::getGMT()->clone(), icu::Locale(region.localeId().c_str()), status));
    if (U_SUCCESS(status)) {
        calendar->setTime(static_cast<double>(daysSince1970(date)) * millisecondsPerDay, status);
    }
    return U_SUCCESS(status) ? std::move(calendar) : nullptr;
}

std::optional<int> numberIn(icu::Calendar* calendar) {
    UErrorCode status = U_ZERO_ERROR;
    const int number = calendar != nullptr ? calendar->get(UCAL_DATE, status) : 0;
    const bool isOne = U_SUCCESS(status) && number >= 1 && number <= longestMonth;
    return isOne ? std::optional(number) : std::nullopt;
}

std::optional<CivilDate> moved(icu::Calendar* calendar, int months) {
    UErrorCode status = U_ZERO_ERROR;
    if (calendar == nullptr) {
        return std::nullopt;
    }
    calendar->add(UCAL_MONTH, months, status);
    const double day = std::floor(calendar->getTime(status) / millisecondsPerDay);
    if (U_FAILURE(status)) {
        return std::nullopt;
    }
    const CivilDate date = dateOf(cctz::civil_day() + static_cast<cctz::diff_t>(day));
    return isValid(date) ? std::optional(date) : std::nullopt;
}

} // namespace

CivilDate firstOfMonth(const Region& region, CivilDate date) {
    return dateOf(dayOf(date) - (dayOfMonth(region, date) - 1));
}

int dayOfMonth(const Region& region, CivilDate date) {
    if (hasGregorianMonths(region)) {
        return date.day;
    }
    return numberIn(calendarAt(region, date).get()).value_or(date.day);
}

CivilDate addingMonths(const Region& region, CivilDate date, int months) {
    const CivilDate civil = addingMonths(date, months);
    if (hasGregorianMonths(region)) {
        return civil;
    }
    const CivilDate result = moved(calendarAt(region, date).get(), months).value_or(civil);
    return (result < date) == (civil < date) ? result : civil;
}

} // namespace platform
