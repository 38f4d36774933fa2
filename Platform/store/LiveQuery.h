#pragma once

#include "Platform/store/Context.h"

#include <cstddef>
#include <functional>
#include <vector>

namespace platform::store {

/// Whether a live query has its answer yet. Loading is never taken for empty.
enum class LiveState { loading, empty, filled };

/// One step of a change report. Steps are applied in order, each to the list the step before left.
struct ListStep {
    enum class Kind { insert, remove, update } kind;
    std::size_t index; ///< position of the first row concerned
    std::size_t count; ///< number of consecutive rows
};

/// A fetch that stays true: an ordered list of packed rows, kept up on every insert, delete, save,
/// rollback and refresh of its context.
///
/// `Row` is a small copyable struct made from a record's values, with
///
///     static std::optional<Row> make(RowRef ref, const R::Values& values);  // nothing: not listed
///     friend bool operator<(const Row&, const Row&);                        // the list's order
///     friend bool operator==(const Row&, const Row&);                       // equal rows: no report
///     RowRef ref;
///
/// so that 100,000 rows cost a few bytes each and no record objects. `record(index)` answers the
/// record object behind a row.
///
/// Confined to its context's thread, except `readRows`, which is meant for a worker.
template <class R, class Row>
class LiveQuery;

} // namespace platform::store
