#pragma once

#include "Platform/calendar/Calendar.h"

#include <string>

namespace platform {

/// The styles in which dates are shown. Order of fields, separators and hour cycle are the region's.
enum class DateStyle {
    weekdayDayTime,  ///< "Sun, Nov 22, 3:10 PM"
    weekdayDayYear,  ///< "Sun, Nov 22, 2026"
    fullDay,         ///< "Sunday, November 22, 2026"
    monthYear,       ///< "November 2026"
    shortWeekday,    ///< "Sun"
    narrowWeekday,   ///< "S"
};

/// Writes dates in English with the conventions of a calendar's region. Formatters are built once
/// per style and kept, so keep an instance for repeated use. Not synchronised: one thread at a time.
class DateText {
public:
    explicit DateText(const Calendar& calendar);
    ~DateText();
    DateText(DateText&&) noexcept;
    DateText& operator=(DateText&&) noexcept;

    [[nodiscard]] std::string text(Instant instant, DateStyle style) const;

private:
    struct Formatters;
    std::unique_ptr<Formatters> formatters_;
};

} // namespace platform
