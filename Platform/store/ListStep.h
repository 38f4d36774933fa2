#pragma once

#include <cstddef>
#include <vector>

namespace platform::store {

/// One step of a change report. Steps are applied in order, each to the list the step before left:
/// first all removals (from the end to the beginning), then all insertions (from the beginning to
/// the end), then all updates. So the row an insertion or update speaks of is the row at that index
/// once all steps are applied. Neighbours are merged into one step.
struct ListStep {
    enum class Kind { insert, remove, update } kind;
    std::size_t index; ///< position of the first row concerned
    std::size_t count; ///< number of consecutive rows

    friend bool operator==(const ListStep&, const ListStep&) = default;
};

using ListSteps = std::vector<ListStep>;

} // namespace platform::store
