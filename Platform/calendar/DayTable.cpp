#include "Platform/calendar/DayTable.h"

#include "Platform/calendar/CivilLookup.h"

#include <algorithm>
#include <iterator>

namespace platform {
namespace {

constexpr double secondsPerDay = 86400;

/// 2200-01-01 00:00 UTC. cctz lists the changes of the clocks only for some 400 years after the
/// last one of the zone file; before this year the list is complete.
constexpr Instant listedUntil{7258118400};

struct ClockChange {
    Instant at;
    cctz::civil_second from;
    cctz::civil_second to;
};

std::vector<ClockChange> listedChanges(const cctz::time_zone& rules, DateInterval range) {
    std::vector<ClockChange> changes;
    const auto end = clampedSeconds(std::min(range.end, listedUntil));
    cctz::time_zone::civil_transition change;
    for (auto at = clampedSeconds(range.start); rules.next_transition(at, &change);) {
        at = rules.lookup(change.to).trans;
        if (at >= end)
            break;
        changes.push_back({instantOf(at), change.from, change.to});
    }
    return changes;
}

/// Walks the days of a zone from start to start.
class DayWalk {
public:
    DayWalk(const cctz::time_zone& rules, const std::vector<ClockChange>& changes, Instant first)
        : rules_(rules), nextChange_(changes.begin()), lastChange_(changes.end()) {
        enter(first);
    }

    [[nodiscard]] Instant start() const { return start_; }

    void advance() {
        const Instant guess = start_ + secondsPerDay;
        const Instant regularUntil = nextChange_ == lastChange_ ? listedUntil : nextChange_->at;
        if (isMidnight_ && guess < regularUntil) {
            ++day_;
            start_ = guess;
        } else {
            enter(instantOf(firstSecondFrom(day_ + 1, rules_)));
        }
    }

private:
    void enter(Instant start) {
        const auto time = rules_.lookup(clampedSeconds(start)).cs;
        start_ = start;
        day_ = cctz::civil_day(time);
        isMidnight_ = time == cctz::civil_second(day_);
        while (nextChange_ != lastChange_ && nextChange_->at <= start_)
            ++nextChange_;
    }

    const cctz::time_zone& rules_;
    std::vector<ClockChange>::const_iterator nextChange_;
    std::vector<ClockChange>::const_iterator lastChange_;
    Instant start_;
    cctz::civil_day day_;
    bool isMidnight_ = false;
};

} // namespace

DayTable::DayTable(const Calendar& calendar, Instant first, Instant last) {
    const auto& rules = calendar.timeZone().rules();
    const DateInterval range{
        calendar.startOfDay(first),
        instantOf(firstSecondFrom(dayOf(calendar.civilDate(last)) + 1, rules))};
    end_ = range.end;
    if (!(first <= last))
        return;
    const auto changes = listedChanges(rules, range);
    DayWalk walk(rules, changes, range.start);
    for (; walk.start() < end_; walk.advance())
        starts_.push_back(walk.start());
    for (const auto& change : changes) {
        const auto newestDay = cctz::civil_day(change.from - 1);
        for (auto day = cctz::civil_day(change.to); day < newestDay; ++day) {
            const auto nextMidnight = cctz::civil_second(day + 1);
            const auto begin = std::max(cctz::civil_second(day), change.to);
            const auto index = indexBetweenStarts(instantOf(firstSecondFrom(day, rules)));
            returns_.push_back({change.at + static_cast<double>(begin - change.to),
                                change.at + static_cast<double>(nextMidnight - change.to), index});
        }
    }
}

std::size_t DayTable::indexBetweenStarts(Instant instant) const {
    const double days = std::max((instant - starts_.front()) / secondsPerDay, 0.0);
    auto index = std::min(static_cast<std::size_t>(days), starts_.size() - 1);
    while (index > 0 && instant < starts_[index])
        --index;
    while (index + 1 < starts_.size() && starts_[index + 1] <= instant)
        ++index;
    return index;
}

std::size_t DayTable::indexOf(Instant instant) const {
    const auto next =
        std::upper_bound(returns_.begin(), returns_.end(), instant,
                         [](Instant wanted, const Return& entry) { return wanted < entry.start; });
    if (next != returns_.begin() && instant < std::prev(next)->end)
        return std::prev(next)->index;
    return indexBetweenStarts(instant);
}

} // namespace platform
