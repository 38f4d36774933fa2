#pragma once

#include "Platform/base/Instant.h"
#include "Platform/base/Uuid.h"
#include "Platform/store/RowKey.h"
#include "QuillmereKit/records/BalanceAdjustmentValues.h"

#include <cstdint>
#include <optional>

namespace quillmere {

/// What lists and sums need of a change, packed for a live query of the whole history. Newest
/// first; changes of one instant by their identifiers' texts, greatest first, then by their place
/// in the store.
///
/// Every change has a row, since every change counts in the balance; `isListed` says whether lists
/// show it.
struct LedgerRow {
    platform::store::RowRef ref;
    platform::Instant date; ///< infinite where the record's is not a number: no moment comes to it
    std::int64_t minutes = 0;
    platform::Uuid id;
    platform::Instant modifiedAt;
    std::uint32_t contentHash = 0; ///< of note and category: rows differ when a list must redraw
    bool isListed = false;         ///< not of zero minutes and not the migration's marker

    [[nodiscard]] static std::optional<LedgerRow> make(platform::store::RowRef ref,
                                                       const BalanceAdjustmentValues& values);

    friend bool operator<(const LedgerRow& a, const LedgerRow& b) {
        return a.date != b.date ? a.date > b.date : a.id > b.id;
    }
    friend bool operator==(const LedgerRow&, const LedgerRow&) = default;
};

} // namespace quillmere
