#pragma once

#include "Platform/base/Instant.h"

#include <optional>

namespace quillmere {

/// Keeps automatic rewrites of the widget snapshot apart.
class WidgetRefreshThrottle {
public:
    /// Grants and remembers `at` when at least `minimumInterval` seconds have passed since the last
    /// grant, also when there was none or the clock went backwards. An interval that is negative or
    /// not a number counts as none.
    bool claim(platform::Instant at, double minimumInterval);

private:
    std::optional<platform::Instant> lastClaimedAt_;
};

} // namespace quillmere
