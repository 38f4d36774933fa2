#include "Platform/calendar/DateText.h"

#include <unicode/dtptngen.h>
#include <unicode/gregocal.h>
#include <unicode/smpdtfmt.h>
#include <unicode/uchar.h>

#include <array>
#include <stdexcept>

namespace platform {
namespace {

constexpr std::size_t styleCount = static_cast<std::size_t>(DateStyle::narrowWeekday) + 1;
constexpr double millisecondsPerSecond = 1000;

void require(UErrorCode status) {
    if (U_FAILURE(status))
        throw std::runtime_error(std::string("ICU cannot format dates: ") + u_errorName(status));
}

/// The fields of a style, as a skeleton of Unicode Technical Standard #35, part 4.
const char16_t* skeletonOf(DateStyle style, bool twelveHour) {
    switch (style) {
    case DateStyle::weekdayDayTime:
        return twelveHour ? u"MMMEdhm" : u"MMMEdHm";
    case DateStyle::weekdayDayYear:
        return u"yMMMEd";
    case DateStyle::weekdayDay:
        return u"MMMEd";
    case DateStyle::sectionDay:
        return u"MMMEEEEd";
    case DateStyle::fullDay:
        return u"yMMMMEEEEd";
    case DateStyle::fullWeekdayDay:
        return u"MMMMEEEEd";
    case DateStyle::day:
        return u"MMMd";
    case DateStyle::dayYear:
        return u"yMMMd";
    case DateStyle::monthYear:
        return u"yMMMM";
    case DateStyle::shortWeekday:
        return u"ccc";
    case DateStyle::narrowWeekday:
        return u"ccccc";
    case DateStyle::fixedDay:
    case DateStyle::fixedMonth:
        break;
    }
    return u"";
}

/// The pattern of a fixed style; null for the styles of a region.
const char16_t* fixedPatternOf(DateStyle style) {
    return style == DateStyle::fixedDay     ? u"yyyy-MM-dd"
           : style == DateStyle::fixedMonth ? u"yyyy-MM"
                                            : nullptr;
}

icu::Locale localeOf(DateStyle style, const Region& region) {
    return fixedPatternOf(style)
               ? icu::Locale(("en_US_POSIX@calendar=" + region.calendarSystem()).c_str())
               : icu::Locale(region.localeId().c_str());
}

icu::UnicodeString patternOf(DateStyle style, const Region& region, const icu::Locale& locale) {
    if (const char16_t* fixed = fixedPatternOf(style))
        return fixed;
    UErrorCode status = U_ZERO_ERROR;
    const std::unique_ptr<icu::DateTimePatternGenerator> generator(
        icu::DateTimePatternGenerator::createInstance(locale, status));
    require(status);
    auto pattern =
        generator->getBestPattern(skeletonOf(style, region.usesTwelveHourClock()), status);
    require(status);
    return pattern;
}

/// A calendar that knows no zone but GMT and no change from Julian to Gregorian dates.
std::unique_ptr<icu::Calendar> civilCalendar(const icu::Locale& locale) {
    UErrorCode status = U_ZERO_ERROR;
    std::unique_ptr<icu::Calendar> calendar(
        icu::Calendar::createInstance(icu::TimeZone::getGMT()->clone(), locale, status));
    require(status);
    if (auto* gregorian = dynamic_cast<icu::GregorianCalendar*>(calendar.get()))
        gregorian->setGregorianChange(Calendar::earliest.secondsSince1970 * millisecondsPerSecond,
                                      status);
    require(status);
    return calendar;
}

std::unique_ptr<icu::SimpleDateFormat> formatterOf(DateStyle style, const Region& region) {
    UErrorCode status = U_ZERO_ERROR;
    const icu::Locale locale = localeOf(style, region);
    auto formatter =
        std::make_unique<icu::SimpleDateFormat>(patternOf(style, region, locale), locale, status);
    require(status);
    formatter->adoptCalendar(civilCalendar(locale).release());
    return formatter;
}

std::string withPlainSpaces(icu::UnicodeString text) {
    for (std::int32_t i = 0; i < text.length(); ++i)
        if (u_charType(text.charAt(i)) == U_SPACE_SEPARATOR)
            text.setCharAt(i, u' ');
    std::string utf8;
    return text.toUTF8String(utf8);
}

} // namespace

struct DateText::Formatters {
    std::array<std::unique_ptr<icu::SimpleDateFormat>, styleCount> byStyle;

    std::string text(std::int64_t civilSeconds, DateStyle style, const Region& region) {
        auto& formatter = byStyle.at(static_cast<std::size_t>(style));
        if (!formatter)
            formatter = formatterOf(style, region);
        icu::UnicodeString text;
        formatter->format(static_cast<double>(civilSeconds) * millisecondsPerSecond, text);
        return withPlainSpaces(std::move(text));
    }
};

DateText::DateText(Calendar calendar)
    : calendar_(std::move(calendar)), formatters_(std::make_unique<Formatters>()) {
}

DateText::~DateText() = default;
DateText::DateText(DateText&&) noexcept = default;
DateText& DateText::operator=(DateText&&) noexcept = default;

std::string DateText::text(Instant instant, DateStyle style) const {
    return formatters_->text(calendar_.civilSeconds(instant), style, calendar_.region());
}

std::string DateText::text(CivilDate date, DateStyle style) const {
    return formatters_->text(daysSince1970(date) * std::int64_t{86400}, style, calendar_.region());
}

std::string DateText::weekdayName(int weekday, DateStyle style) const {
    const CivilDate saturday{2026, 11, 21};
    return text(CivilDate{saturday.year, saturday.month, saturday.day + weekday}, style);
}

} // namespace platform
