#pragma once

#include "Platform/base/Instant.h"

namespace quillmere {

/// A stretch of time.
struct DateInterval {
    platform::Instant start;
    platform::Instant end; ///< not before `start`

    [[nodiscard]] double duration() const { return end - start; }

    friend bool operator==(const DateInterval&, const DateInterval&) = default;
};

} // namespace quillmere
