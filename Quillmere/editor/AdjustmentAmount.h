#pragma once

#include "Quillmere/editor/AdjustmentDirection.h"

#include <cstdint>

namespace quillmere {

/// The minutes of a change as the editor has them: a direction, whole hours and minutes. Never
/// beyond 24 hours.
class AdjustmentAmount {
public:
    static constexpr int maximumHours = 24;
    static constexpr int maximumMinutes = 59;

    /// One hour added.
    AdjustmentAmount() = default;

    /// The nearest amount within 24 hours either way. No minutes at all are added ones.
    [[nodiscard]] static AdjustmentAmount of(std::int64_t minutes);

    [[nodiscard]] AdjustmentDirection direction() const { return direction_; }
    [[nodiscard]] int hours() const { return hours_; }
    [[nodiscard]] int minutes() const { return minutes_; }
    /// All of it in minutes, negative when deducted.
    [[nodiscard]] int signedMinutes() const;

    void setDirection(AdjustmentDirection direction) { direction_ = direction; }
    /// Within 0 … 24; 24 hours leave no minutes.
    void setHours(int hours);
    /// Within 0 … 59, and 0 beside 24 hours.
    void setMinutes(int minutes);

    friend bool operator==(const AdjustmentAmount&, const AdjustmentAmount&) = default;

private:
    AdjustmentDirection direction_ = AdjustmentDirection::credit;
    int hours_ = 1;
    int minutes_ = 0;
};

} // namespace quillmere
