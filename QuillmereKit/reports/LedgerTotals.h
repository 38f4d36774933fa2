#pragma once

#include <cstdint>

namespace quillmere {

/// What was added and what was taken, in seconds and both positive.
struct LedgerTotals {
    double addedSeconds = 0;
    double subtractedSeconds = 0;

    void add(std::int64_t minutes) {
        const double seconds = static_cast<double>(minutes) * 60.0;
        (seconds < 0 ? subtractedSeconds : addedSeconds) += seconds < 0 ? -seconds : seconds;
    }

    [[nodiscard]] double netSeconds() const { return addedSeconds - subtractedSeconds; }

    friend bool operator==(const LedgerTotals&, const LedgerTotals&) = default;
};

} // namespace quillmere
