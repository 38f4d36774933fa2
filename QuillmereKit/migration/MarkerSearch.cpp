#include "QuillmereKit/migration/MarkerSearch.h"

#include "QuillmereKit/maintenance/NoteWords.h"
#include "QuillmereKit/migration/ManualLedgerMigration.h"

#include <algorithm>

namespace quillmere {

using platform::store::RowKey;

namespace {

std::vector<RowKey> keysOf(const std::vector<BalanceAdjustment*>& markers) {
    std::vector<RowKey> keys;
    keys.reserve(markers.size());
    for (const BalanceAdjustment* marker : markers) {
        keys.push_back(marker->key());
    }
    return keys;
}

} // namespace

MarkerSearch::MarkerSearch(platform::store::Context& context)
    : context_(context), memory_(context, "repaired.ledgerMarker") {
    mark_.revision = context.revision();
}

std::vector<BalanceAdjustment*> MarkerSearch::find() {
    const auto last = memory_.recall(context_.clock().now());
    auto markers = last ? amongKnownAndChanged(*last) : amongAll();
    mark_.finding = NoteWords::list(keysOf(markers));
    return markers;
}

std::vector<BalanceAdjustment*> MarkerSearch::amongKnownAndChanged(const RepairMark& last) {
    std::vector<BalanceAdjustment*> markers;
    const auto addMarker = [&markers](BalanceAdjustment* record) {
        if (record != nullptr && ManualLedgerMigration::isCarryover(*record) &&
            std::ranges::find(markers, record) == markers.end()) {
            markers.push_back(record);
        }
    };
    for (const RowKey key : NoteWords::keys(last.finding)) {
        addMarker(context_.find<BalanceAdjustment>(key));
    }
    for (BalanceAdjustment* record : context_.fetchChangedSince<BalanceAdjustment>(last.revision)) {
        addMarker(record);
        ++looked_;
    }
    return markers;
}

std::vector<BalanceAdjustment*> MarkerSearch::amongAll() {
    std::vector<RowKey> keys;
    context_.scan<BalanceAdjustment>({}, [&](RowKey key, const BalanceAdjustmentValues& values) {
        ++looked_;
        if (ManualLedgerMigration::isCarryover(values)) {
            keys.push_back(key);
        }
    });
    std::vector<BalanceAdjustment*> markers;
    markers.reserve(keys.size());
    for (const RowKey key : keys) {
        markers.push_back(context_.find<BalanceAdjustment>(key));
    }
    std::erase(markers, nullptr);
    return markers;
}

void MarkerSearch::finish(bool changed) const {
    memory_.finish(mark_, changed, looked_);
}

} // namespace quillmere
