#include "QuillmereKit/widget/WidgetSnapshotStore.h"

#include "QuillmereKit/persistence/RuntimeEntitlements.h"
#include "QuillmereKit/records/AppConstants.h"

namespace quillmere::WidgetSnapshotStore {

platform::Preferences& chosenDefaults(const platform::Entitlements& entitlements,
                                      platform::Preferences* suite,
                                      platform::Preferences& standard) {
    return suite != nullptr && RuntimeEntitlements::hasUsableAppGroup(entitlements) ? *suite
                                                                                    : standard;
}

WidgetSnapshot load(const platform::Preferences& defaults, const platform::Clock& clock) {
    const auto json = defaults.data(AppConstants::widgetSnapshotKey);
    const auto snapshot = json ? WidgetSnapshot::decodeJSON(*json) : std::nullopt;
    return snapshot.value_or(WidgetSnapshot::empty(clock));
}

void save(const WidgetSnapshot& snapshot, platform::Preferences& defaults) {
    if (const auto json = snapshot.encodedJSON()) {
        defaults.setData(AppConstants::widgetSnapshotKey, *json);
    }
}

} // namespace quillmere::WidgetSnapshotStore
