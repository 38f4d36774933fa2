#pragma once

#include <compare>

namespace platform {

/// A point in time: seconds since 1970-01-01 00:00:00 UTC, leap seconds not counted. The double is
/// stored and exchanged bit for bit; nothing here rounds it.
struct Instant {
    double secondsSince1970 = 0;

    friend constexpr auto operator<=>(Instant, Instant) = default;

    friend constexpr Instant operator+(Instant instant, double seconds) {
        return {instant.secondsSince1970 + seconds};
    }
    friend constexpr Instant operator-(Instant instant, double seconds) {
        return {instant.secondsSince1970 - seconds};
    }
    /// Seconds from the right operand to the left one.
    friend constexpr double operator-(Instant later, Instant earlier) {
        return later.secondsSince1970 - earlier.secondsSince1970;
    }
};

/// 2001-01-01 00:00:00 UTC, from which two of the formats that are read and written here count.
inline constexpr Instant referenceDate2001{978307200.0};

} // namespace platform
