#pragma once

#include "Platform/calendar/Calendar.h"

#include <cstddef>
#include <vector>

namespace platform {

/// The starts of all days of a range, computed once, so that bulk work never asks the calendar per
/// record. Answers what `Calendar` answers; a lookup is a guess by arithmetic and at most a step or
/// two.
class DayTable {
public:
    /// The days from the one containing `first` to the one containing `last`, both included. Empty
    /// when `first` is after `last`, and when one of them is not a number. Takes 8 bytes a day, and
    /// the time of a few calendar operations for each change of the zone's clocks.
    DayTable(const Calendar& calendar, Instant first, Instant last);

    [[nodiscard]] std::size_t size() const { return starts_.size(); }
    [[nodiscard]] bool empty() const { return starts_.empty(); }
    /// Start of the day at `index`; ascending.
    [[nodiscard]] Instant start(std::size_t index) const { return starts_[index]; }
    /// The end of the table: the start of the day after the last one.
    [[nodiscard]] Instant end() const { return end_; }

    /// Index of the day that contains `instant`; 0 for an hour that belongs to the day before the
    /// table but follows start(0) (see `Calendar`). Precondition: start(0) ≤ instant < end().
    [[nodiscard]] std::size_t indexOf(Instant instant) const;

private:
    /// Time whose date is an earlier one than its place between the starts tells.
    struct Return {
        Instant start;
        Instant end;
        std::size_t index;
    };

    [[nodiscard]] std::size_t indexBetweenStarts(Instant instant) const;

    std::vector<Instant> starts_;
    std::vector<Return> returns_;
    Instant end_;
};

} // namespace platform
