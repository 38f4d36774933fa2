#include "Platform/calendar/Region.h"

#include <unicode/calendar.h>
#include <unicode/dtptngen.h>
#include <unicode/locid.h>

#include <algorithm>
#include <cstdlib>
#include <memory>
#include <optional>

namespace platform {
namespace {

struct LocaleName {
    std::string language;
    std::string region;
};

bool isLetters(std::string_view text) {
    return std::all_of(text.begin(), text.end(),
                       [](char c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z'); });
}

/// Language and region of "ll_RR[.charset][@modifier]".
std::optional<LocaleName> parsed(std::string_view posixName) {
    const auto name = posixName.substr(0, posixName.find_first_of(".@"));
    const auto separator = name.find('_');
    if (separator == std::string_view::npos)
        return std::nullopt;
    const auto language = name.substr(0, separator);
    const auto region = name.substr(separator + 1);
    if (language.size() < 2 || language.size() > 3 || region.size() != 2 || !isLetters(language) ||
        !isLetters(region))
        return std::nullopt;
    return LocaleName{std::string(language), std::string(region)};
}

std::string englishOf(const std::string& region) {
    const icu::Locale wanted("en", region.c_str());
    std::int32_t count = 0;
    const auto* available = icu::Locale::getAvailableLocales(count);
    return std::find(available, available + count, wanted) != available + count ? wanted.getName()
                                                                                : "en_001";
}

std::string calendarSystemOf(const icu::Locale& locale) {
    UErrorCode status = U_ZERO_ERROR;
    const std::unique_ptr<icu::StringEnumeration> preferred(
        icu::Calendar::getKeywordValuesForLocale("calendar", locale, true, status));
    const char* first = U_SUCCESS(status) ? preferred->next(nullptr, status) : nullptr;
    return first ? first : "gregorian";
}

int firstWeekdayOf(const icu::Locale& locale) {
    UErrorCode status = U_ZERO_ERROR;
    const std::unique_ptr<icu::Calendar> calendar(
        icu::Calendar::createInstance(icu::TimeZone::getGMT()->clone(), locale, status));
    const auto day = U_SUCCESS(status) ? calendar->getFirstDayOfWeek(status) : UCAL_SUNDAY;
    return static_cast<int>(day);
}

bool usesTwelveHours(const icu::Locale& locale) {
    UErrorCode status = U_ZERO_ERROR;
    const std::unique_ptr<icu::DateTimePatternGenerator> generator(
        icu::DateTimePatternGenerator::createInstance(locale, status));
    const auto cycle =
        U_SUCCESS(status) ? generator->getDefaultHourCycle(status) : UDAT_HOUR_CYCLE_12;
    return cycle == UDAT_HOUR_CYCLE_11 || cycle == UDAT_HOUR_CYCLE_12;
}

std::string localeOfEnvironment() {
    for (const char* variable : {"LC_ALL", "LC_TIME", "LANG"}) {
        const char* value = std::getenv(variable); // NOLINT(concurrency-mt-unsafe): nothing sets it
        if (value && *value)
            return value;
    }
    return "C";
}

} // namespace

Region Region::fromLocale(std::string_view posixName) {
    Region region;
    const auto name = parsed(posixName);
    if (!name)
        return region;
    const icu::Locale locale(name->language.c_str(), name->region.c_str());
    region.calendarSystem_ = calendarSystemOf(locale);
    region.localeId_ = englishOf(name->region) + "@calendar=" + region.calendarSystem_;
    region.firstWeekday_ = firstWeekdayOf(locale);
    region.twelveHour_ = usesTwelveHours(locale);
    return region;
}

Region Region::system() {
    return fromLocale(localeOfEnvironment());
}

} // namespace platform
