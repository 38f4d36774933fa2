#pragma once

#include "Platform/base/Instant.h"

namespace platform {

/// The time from `start` up to, but not including, `end`.
struct DateInterval {
    Instant start;
    Instant end;

    [[nodiscard]] constexpr bool contains(Instant instant) const {
        return start <= instant && instant < end;
    }

    friend constexpr bool operator==(const DateInterval&, const DateInterval&) = default;
};

} // namespace platform
