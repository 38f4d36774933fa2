#include "Quillmere/editor/AdjustmentAmount.h"

#include <algorithm>
#include <cstdlib>

namespace quillmere {

AdjustmentAmount AdjustmentAmount::of(std::int64_t minutes) {
    constexpr std::int64_t most = std::int64_t{maximumHours} * 60;
    const int clamped = static_cast<int>(std::clamp(minutes, -most, most));
    AdjustmentAmount amount;
    amount.direction_ = clamped < 0 ? AdjustmentDirection::debit : AdjustmentDirection::credit;
    amount.hours_ = std::abs(clamped) / 60;
    amount.minutes_ = std::abs(clamped) % 60;
    return amount;
}

int AdjustmentAmount::signedMinutes() const {
    const int total = hours_ * 60 + minutes_;
    return direction_ == AdjustmentDirection::debit ? -total : total;
}

void AdjustmentAmount::setHours(int hours) {
    hours_ = std::clamp(hours, 0, maximumHours);
    setMinutes(minutes_);
}

void AdjustmentAmount::setMinutes(int minutes) {
    minutes_ = hours_ == maximumHours ? 0 : std::clamp(minutes, 0, maximumMinutes);
}

} // namespace quillmere
