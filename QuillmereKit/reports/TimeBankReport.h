#pragma once

#include "Platform/calendar/DateInterval.h"
#include "QuillmereKit/calculation/DayBalance.h"

#include <vector>

namespace quillmere {

/// A week or a month of days and their totals, in seconds, each summed in the order of the days.
struct TimeBankReport {
    platform::DateInterval interval;
    std::vector<DayBalance> days;

    [[nodiscard]] double workedSeconds() const;
    [[nodiscard]] double adjustmentSeconds() const;
    [[nodiscard]] double expectedSeconds() const;
    /// The sum of the days' balances, not a difference of the other totals: they may round apart.
    [[nodiscard]] double balanceSeconds() const;

    friend bool operator==(const TimeBankReport&, const TimeBankReport&) = default;
};

} // namespace quillmere
