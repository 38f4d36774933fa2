#pragma once

#include "Platform/base/Instant.h"

namespace quillmere {

/// Bounds for the timestamps of records that arrive or are repaired.
namespace RecordTimestampValidation {

/// Seconds by which another device's clock may be ahead.
inline constexpr double maximumFutureSkew = 300;

/// `now` when the time is further ahead than the allowed skew, else the time itself.
[[nodiscard]] constexpr platform::Instant normalizedModifiedAt(platform::Instant modifiedAt,
                                                               platform::Instant now) {
    return modifiedAt > now + maximumFutureSkew ? now : modifiedAt;
}

/// The earlier of the two: no record is created after its last change.
[[nodiscard]] constexpr platform::Instant normalizedCreatedAt(platform::Instant createdAt,
                                                              platform::Instant modifiedAt) {
    return modifiedAt < createdAt ? modifiedAt : createdAt;
}

} // namespace RecordTimestampValidation

} // namespace quillmere
