#pragma once

#include <string>
#include <string_view>

namespace platform {

/// How dates are written: the language is English, the conventions those of the user's region
/// (Unicode CLDR, as ICU carries it). An immutable value.
class Region {
public:
    /// en_US.
    Region() = default;

    /// From a POSIX locale name such as "de_DE.UTF-8" or "C". The region's own English is used
    /// where ICU has it (en_GB, en_AT …), else world English (en_001); hour cycle, first weekday
    /// and calendar system always come from the region itself. "C", "POSIX" and names without a
    /// region give en_US.
    [[nodiscard]] static Region fromLocale(std::string_view posixName);

    /// The region of `LC_ALL`, `LC_TIME` or `LANG`: the first of them that is set and not empty.
    [[nodiscard]] static Region system();

    /// ICU identifier of the locale dates are formatted with, calendar system included:
    /// "en_GB@calendar=gregorian".
    [[nodiscard]] const std::string& localeId() const { return localeId_; }

    /// 1 = Sunday … 7 = Saturday.
    [[nodiscard]] int firstWeekday() const { return firstWeekday_; }

    [[nodiscard]] bool usesTwelveHourClock() const { return twelveHour_; }

    /// The region's preferred calendar system by its CLDR name: "gregorian", "buddhist", "persian"
    /// ….
    [[nodiscard]] const std::string& calendarSystem() const { return calendarSystem_; }

    friend bool operator==(const Region&, const Region&) = default;

private:
    std::string localeId_ = "en_US@calendar=gregorian";
    std::string calendarSystem_ = "gregorian";
    int firstWeekday_ = 1;
    bool twelveHour_ = true;
};

} // namespace platform
