#pragma once

#include <string>
#include <string_view>

namespace platform {

/// How dates are written: the language is English, the conventions those of the user's region.
/// An immutable value.
class Region {
public:
    /// From a POSIX locale name such as "de_DE.UTF-8" or "C". The region's own English is used where
    /// ICU has it (en_GB, en_AT …), else world English (en_001); hour cycle and first weekday always
    /// come from the region itself. "C", "POSIX" and names without a region give en_US.
    [[nodiscard]] static Region fromLocale(std::string_view posixName);

    /// The region of `LC_ALL`, `LC_TIME` or `LANG`, in that order of precedence.
    [[nodiscard]] static Region system();

    /// ICU identifier of the locale dates are formatted with, hour cycle included.
    [[nodiscard]] const std::string& localeId() const { return localeId_; }

    /// 1 = Sunday … 7 = Saturday.
    [[nodiscard]] int firstWeekday() const { return firstWeekday_; }

    [[nodiscard]] bool usesTwelveHourClock() const { return twelveHour_; }

    friend bool operator==(const Region&, const Region&) = default;

private:
    std::string localeId_ = "en_US";
    int firstWeekday_ = 1;
    bool twelveHour_ = true;
};

} // namespace platform
