#include "QuillmereKit/migration/MarkerSearch.h"

#include "QuillmereKit/migration/ManualLedgerMigration.h"

#include <algorithm>
#include <charconv>
#include <cstdint>
#include <string>
#include <string_view>

namespace quillmere {

using platform::store::RowKey;

namespace {

std::string keyList(const std::vector<BalanceAdjustment*>& markers) {
    std::string keys;
    for (const BalanceAdjustment* marker : markers) {
        keys += keys.empty() ? "" : ",";
        keys += std::to_string(static_cast<std::int64_t>(marker->key()));
    }
    return keys;
}

std::vector<RowKey> keysOf(std::string_view list) {
    std::vector<RowKey> keys;
    while (!list.empty()) {
        const std::string_view word = list.substr(0, list.find(','));
        list.remove_prefix(std::min(word.size() + 1, list.size()));
        std::int64_t key = 0;
        std::from_chars(word.data(), word.data() + word.size(), key);
        keys.push_back(RowKey{key});
    }
    return keys;
}

} // namespace

MarkerSearch::MarkerSearch(platform::store::Context& context)
    : context_(context), memory_(context, "ledgerMarker") {
    mark_.revision = context.revision();
}

std::vector<BalanceAdjustment*> MarkerSearch::find() {
    const auto last = memory_.recall(context_.clock().now());
    auto markers = last ? amongKnownAndChanged(*last) : amongAll();
    mark_.finding = keyList(markers);
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
    for (const RowKey key : keysOf(last.finding)) {
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
