#pragma once

#include "Platform/base/Instant.h"

namespace quillmere {

/// What one calendar day adds to the balance. The ledger model has adjustments only.
struct DayBalance {
    platform::Instant date; ///< start of the day
    double workedSeconds = 0;
    double adjustmentSeconds = 0;
    double expectedSeconds = 0;

    [[nodiscard]] platform::Instant id() const { return date; }
    [[nodiscard]] double balanceSeconds() const {
        return (workedSeconds + adjustmentSeconds) - expectedSeconds;
    }

    friend bool operator==(const DayBalance&, const DayBalance&) = default;
};

} // namespace quillmere
