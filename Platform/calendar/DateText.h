#pragma once

#include "Platform/calendar/Calendar.h"

#include <memory>
#include <string>

namespace platform {

/// The styles in which dates are written. Order of fields, separators and hour cycle are the
/// region's, except where a style is fixed; the examples are those of en_US.
enum class DateStyle {
    weekdayDayTime, ///< "Sun, Nov 22, 3:10 PM"
    weekdayDayYear, ///< "Sun, Nov 22, 2026"
    weekdayDay,     ///< "Sun, Nov 22"
    sectionDay,     ///< "Sunday, Nov 22"
    fullDay,        ///< "Sunday, November 22, 2026"
    fullWeekdayDay, ///< "Sunday, November 22"
    day,            ///< "Nov 22"
    dayYear,        ///< "Nov 22, 2026"
    monthYear,      ///< "November 2026"
    fixedDay,       ///< "2026-11-22" in every region, for files
    fixedMonth,     ///< "2026-11" in every region, for files
    shortWeekday,   ///< "Sun"
    narrowWeekday,  ///< "S"
};

/// Writes dates in English with the conventions of a calendar's region, in the region's calendar
/// system ("November 22, 2569 BE" for th_TH). Every space is U+0020, so that a text is the same
/// with every version of ICU. A formatter is built at the first use of its style and kept, so keep
/// an instance for repeated use. Not synchronised: one thread at a time.
class DateText {
public:
    explicit DateText(Calendar calendar);
    ~DateText();
    DateText(DateText&&) noexcept;
    DateText& operator=(DateText&&) noexcept;

    [[nodiscard]] std::string text(Instant instant, DateStyle style) const;

    /// The date alone, of no particular time: for dates of a grid, one that was skipped included.
    /// Precondition: isValid(date).
    [[nodiscard]] std::string text(CivilDate date, DateStyle style) const;

    /// Name of a weekday (1 = Sunday … 7 = Saturday); `style` is `shortWeekday` or `narrowWeekday`.
    [[nodiscard]] std::string weekdayName(int weekday, DateStyle style) const;

private:
    struct Formatters;

    Calendar calendar_;
    std::unique_ptr<Formatters> formatters_;
};

} // namespace platform
