#pragma once

#include "QuillmereKit/maintenance/RepairMemory.h"
#include "QuillmereKit/records/BalanceAdjustment.h"

#include <cstddef>
#include <vector>

namespace quillmere {

/// Finds the markers of the ledger migration. Records are not indexed by identifier, so the places
/// of the markers are remembered, and later searches look there and at what was written since.
class MarkerSearch {
public:
    /// The context must outlive the object.
    explicit MarkerSearch(platform::store::Context& context);

    [[nodiscard]] std::vector<BalanceAdjustment*> find();

    /// Ends a pass that may save; see `RepairMemory::finish`. Precondition: `find` was called.
    void finish(bool changed) const;

private:
    [[nodiscard]] std::vector<BalanceAdjustment*> amongKnownAndChanged(const RepairMark& last);
    [[nodiscard]] std::vector<BalanceAdjustment*> amongAll();

    platform::store::Context& context_;
    RepairMemory memory_;
    RepairMark mark_; ///< its finding: the keys of the markers, joined by commas
    std::size_t looked_ = 0;
};

} // namespace quillmere
