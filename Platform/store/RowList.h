#pragma once

#include "Platform/store/ListStep.h"
#include "Platform/store/RowKey.h"

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <optional>
#include <unordered_map>
#include <utility>
#include <vector>

namespace platform::store {

/// An ordered list of packed rows that takes batches of changes and reports them as steps. Rows are
/// ordered by their own `<`, equals by key. A batch costs one pass over the list, and moves rows
/// only when some come or go.
template <class Row>
class RowList {
public:
    /// A row that is to be listed as `next`, or not at all, and is known as `former` so far.
    struct Change {
        RowKey key;
        RowKey former;
        std::optional<Row> next;
    };

    [[nodiscard]] const std::vector<Row>& rows() const { return rows_; }

    /// Brings rows into the list's order.
    static void sort(std::vector<Row>& rows) {
        if (!std::is_sorted(rows.begin(), rows.end(), precedes)) {
            std::sort(rows.begin(), rows.end(), precedes);
        }
    }

    /// Replaces the whole list by sorted rows.
    void assign(std::vector<Row> rows) { rows_ = std::move(rows); }

    /// Later changes of a row override earlier ones.
    ListSteps apply(const std::vector<Change>& changes) {
        std::vector<std::size_t> removals;
        std::vector<Row> insertions;
        std::vector<Row> updates;
        for (const auto& [change, at] : locate(chained(changes))) {
            if (at == unlisted) {
                if (change.next) {
                    insertions.push_back(*change.next);
                }
            } else if (!change.next) {
                removals.push_back(at);
            } else if (fits(at, *change.next)) {
                const bool isEqual = rows_[at] == *change.next;
                rows_[at] = *change.next;
                if (!isEqual) {
                    updates.push_back(*change.next);
                }
            } else {
                removals.push_back(at);
                insertions.push_back(*change.next);
            }
        }
        ListSteps steps;
        remove(std::move(removals), steps);
        insert(std::move(insertions), steps);
        reportUpdates(updates, steps);
        return steps;
    }

private:
    static constexpr auto unlisted = static_cast<std::size_t>(-1);
    using Located = std::vector<std::pair<Change, std::size_t>>;

    static bool precedes(const Row& a, const Row& b) {
        return a < b || (!(b < a) && a.ref < b.ref);
    }

    /// One change a row, from what it is listed as now to what it is to be in the end.
    static std::vector<Change> chained(const std::vector<Change>& changes) {
        std::vector<Change> chains;
        std::unordered_map<RowKey, std::size_t> ends;
        for (const Change& change : changes) {
            const auto known = ends.find(change.former);
            const std::size_t chain = known == ends.end() ? chains.size() : known->second;
            if (chain == chains.size()) {
                chains.push_back(change);
            } else {
                chains[chain].key = change.key;
                chains[chain].next = change.next;
            }
            ends[change.key] = chain;
        }
        return chains;
    }

    /// The changes in the order of their former keys, with their rows' positions.
    Located locate(std::vector<Change> changes) const {
        Located located;
        located.reserve(changes.size());
        for (Change& change : changes) {
            located.emplace_back(std::move(change), unlisted);
        }
        const auto former = [](const auto& entry) { return entry.first.former; };
        std::ranges::sort(located, {}, former);
        std::size_t missing = located.size();
        for (std::size_t i = 0; i < rows_.size() && missing > 0; ++i) {
            const auto entry = std::ranges::lower_bound(located, rows_[i].ref, {}, former);
            if (entry != located.end() && entry->first.former == rows_[i].ref) {
                entry->second = i;
                --missing;
            }
        }
        return located;
    }

    /// Whether the row can take the place of the one at `at`.
    [[nodiscard]] bool fits(std::size_t at, const Row& row) const {
        return (at == 0 || precedes(rows_[at - 1], row)) &&
               (at + 1 == rows_.size() || precedes(row, rows_[at + 1]));
    }

    void remove(std::vector<std::size_t> positions, ListSteps& steps) {
        if (positions.empty()) {
            return;
        }
        std::ranges::sort(positions);
        auto write = rows_.begin() + static_cast<std::ptrdiff_t>(positions.front());
        for (std::size_t i = 0; i < positions.size(); ++i) {
            const std::size_t end = i + 1 < positions.size() ? positions[i + 1] : rows_.size();
            write = std::move(rows_.begin() + static_cast<std::ptrdiff_t>(positions[i] + 1),
                              rows_.begin() + static_cast<std::ptrdiff_t>(end), write);
        }
        rows_.erase(write, rows_.end());
        const std::size_t first = steps.size();
        appendRuns(ListStep::Kind::remove, positions, steps);
        std::reverse(steps.begin() + static_cast<std::ptrdiff_t>(first), steps.end());
    }

    void insert(std::vector<Row> inserted, ListSteps& steps) {
        if (inserted.empty()) {
            return;
        }
        std::sort(inserted.begin(), inserted.end(), precedes);
        std::vector<std::size_t> positions;
        for (const Row& row : inserted) {
            const auto at = std::upper_bound(rows_.begin(), rows_.end(), row, precedes);
            positions.push_back(static_cast<std::size_t>(at - rows_.begin()) + positions.size());
        }
        auto source = static_cast<std::ptrdiff_t>(rows_.size());
        rows_.insert(rows_.end(), inserted.size(), inserted.front());
        auto target = rows_.end();
        for (std::size_t i = inserted.size(); i-- > 0;) {
            const auto start = static_cast<std::ptrdiff_t>(positions[i] - i);
            target = std::move_backward(rows_.begin() + start, rows_.begin() + source, target);
            *--target = inserted[i];
            source = start;
        }
        appendRuns(ListStep::Kind::insert, positions, steps);
    }

    void reportUpdates(const std::vector<Row>& updated, ListSteps& steps) const {
        std::vector<std::size_t> positions;
        for (const Row& row : updated) {
            const auto at = std::lower_bound(rows_.begin(), rows_.end(), row, precedes);
            positions.push_back(static_cast<std::size_t>(at - rows_.begin()));
        }
        std::ranges::sort(positions);
        appendRuns(ListStep::Kind::update, positions, steps);
    }

    static void appendRuns(ListStep::Kind kind, const std::vector<std::size_t>& positions,
                           ListSteps& steps) {
        bool extends = false;
        for (const std::size_t position : positions) {
            if (extends && steps.back().index + steps.back().count == position) {
                ++steps.back().count;
            } else {
                steps.push_back({kind, position, 1});
            }
            extends = true;
        }
    }

    std::vector<Row> rows_;
};

} // namespace platform::store
