#pragma once

#include "Platform/calendar/Calendar.h"

#include <cstddef>
#include <vector>

namespace platform {

/// The starts of all days of a range, computed once, so that bulk work never asks the calendar per
/// record. Lookups are a guess by arithmetic and at most a step or two.
class DayTable {
public:
    /// The days from the one containing `first` to the one containing `last`, both included. Empty
    /// when `first` is after `last`.
    DayTable(const Calendar& calendar, Instant first, Instant last);

    [[nodiscard]] std::size_t size() const { return starts_.size(); }
    [[nodiscard]] bool empty() const { return starts_.empty(); }
    /// Start of the day at `index`; ascending.
    [[nodiscard]] Instant start(std::size_t index) const { return starts_[index]; }
    /// The end of the table: the start of the day after the last one.
    [[nodiscard]] Instant end() const { return end_; }

    /// Index of the day that contains `instant`. Precondition: start(0) ≤ instant < end().
    [[nodiscard]] std::size_t indexOf(Instant instant) const;

private:
    std::vector<Instant> starts_;
    Instant end_;
};

} // namespace platform
