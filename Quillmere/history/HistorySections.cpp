#include "Quillmere/history/HistorySections.h"

#include "Platform/calendar/DayTable.h"

#include <algorithm>
#include <utility>

namespace quillmere {

namespace {

using platform::Instant;
using platform::store::ListStep;
using platform::store::ListSteps;
using Place = std::optional<std::size_t>;

/// Starts of days for dates that come newest first. However far apart they are, tables of a year
/// answer for them.
class DayLookup {
public:
    explicit DayLookup(const platform::Calendar& calendar)
        : calendar_(calendar), table_(calendar, Instant{1}, Instant{0}) {}

    Instant startOf(Instant date) {
        const Instant within =
            std::clamp(date, platform::Calendar::earliest, platform::Calendar::latest);
        if (!covers(within)) {
            table_ = platform::DayTable(calendar_, within - secondsPerTable, within);
        }
        return table_.start(table_.indexOf(within));
    }

private:
    static constexpr double secondsPerTable = 366 * 86400.0;

    /// The first days of a table do not count: an hour of the day before it may lie in them.
    [[nodiscard]] bool covers(Instant date) const {
        return table_.size() > 2 && table_.start(2) <= date && date < table_.end();
    }

    const platform::Calendar& calendar_;
    platform::DayTable table_;
};

void mark(std::vector<bool>& marks, const ListStep& step) {
    std::fill_n(marks.begin() + static_cast<std::ptrdiff_t>(step.index), step.count, true);
}

struct Traced {
    std::vector<Place> formerIndexes; ///< of each present item; none for new ones
    std::vector<bool> isUpdated;
};

/// Removals speak of the list before them from its end on, insertions and updates of the list as it
/// is in the end.
Traced trace(std::size_t formerSize, std::size_t size, const ListSteps& steps) {
    Traced traced{std::vector<Place>(size), std::vector<bool>(size)};
    std::vector<bool> isRemoved(formerSize);
    std::vector<bool> isInserted(size);
    for (const ListStep& step : steps) {
        mark(step.kind == ListStep::Kind::remove   ? isRemoved
             : step.kind == ListStep::Kind::insert ? isInserted
                                                   : traced.isUpdated,
             step);
    }
    std::size_t former = 0;
    for (std::size_t i = 0; i < size; ++i) {
        if (!isInserted[i]) {
            while (isRemoved[former]) {
                ++former;
            }
            traced.formerIndexes[i] = former++;
        }
    }
    return traced;
}

/// One step for each run of marked rows.
ListSteps runs(ListStep::Kind kind, const std::vector<bool>& marks) {
    ListSteps steps;
    for (std::size_t i = 0; i < marks.size(); ++i) {
        if (!marks[i]) {
            continue;
        }
        if (!steps.empty() && steps.back().index + steps.back().count == i) {
            ++steps.back().count;
        } else {
            steps.push_back({kind, i, 1});
        }
    }
    return steps;
}

ListSteps joined(ListSteps removals, const ListSteps& insertions, const ListSteps& updates) {
    std::ranges::reverse(removals);
    removals.insert(removals.end(), insertions.begin(), insertions.end());
    removals.insert(removals.end(), updates.begin(), updates.end());
    return removals;
}

} // namespace

HistorySections::HistorySections(std::span<const LedgerRow> changes, platform::Calendar calendar)
    : calendar_(std::move(calendar)) {
    arrange(changes);
}

ListSteps HistorySections::update(std::span<const LedgerRow> changes, const ListSteps& steps) {
    const std::vector<Row> formerRows = std::exchange(rows_, {});
    const std::vector<Place> formerPlaces = std::exchange(places_, {});
    const Traced traced = trace(formerPlaces.size(), changes.size(), steps);
    arrange(changes);
    std::vector<bool> isRemoved(formerRows.size(), true);
    std::vector<bool> isInserted(rows_.size(), true);
    std::vector<bool> isUpdated(rows_.size());
    for (std::size_t i = 0; i < changes.size(); ++i) {
        const Place former =
            traced.formerIndexes[i] ? formerPlaces[*traced.formerIndexes[i]] : Place{};
        const Place present = places_[i];
        if (former && present && formerRows[*former].day == rows_[*present].day) {
            isRemoved[*former] = false;
            isInserted[*present] = false;
            isUpdated[*present] = traced.isUpdated[i];
        }
    }
    return joined(runs(ListStep::Kind::remove, isRemoved), runs(ListStep::Kind::insert, isInserted),
                  runs(ListStep::Kind::update, isUpdated));
}

void HistorySections::arrange(std::span<const LedgerRow> changes) {
    struct Listed {
        std::size_t index;
        Instant day;
    };
    std::vector<Listed> listed;
    listed.reserve(changes.size());
    DayLookup days(calendar_);
    for (std::size_t i = 0; i < changes.size(); ++i) {
        if (changes[i].isListed) {
            listed.push_back({i, days.startOf(changes[i].date)});
        }
    }
    const auto isLater = [](const Listed& a, const Listed& b) { return a.day > b.day; };
    if (!std::ranges::is_sorted(listed, isLater)) {
        std::ranges::stable_sort(listed, isLater);
    }
    places_.assign(changes.size(), {});
    rows_.reserve(listed.size());
    for (const Listed& one : listed) {
        places_[one.index] = rows_.size();
        rows_.push_back({changes[one.index].ref, one.day});
    }
}

} // namespace quillmere
