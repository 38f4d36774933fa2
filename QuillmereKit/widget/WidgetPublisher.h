#pragma once

#include "Platform/preferences/Preferences.h"
#include "QuillmereKit/widget/WidgetCenter.h"
#include "QuillmereKit/widget/WidgetSnapshotStore.h"

namespace quillmere {

/// Where this program publishes the widget snapshot, and whom it tells. Both outlive it.
struct WidgetPublisher {
    platform::Preferences& defaults; ///< see `WidgetSnapshotStore::chosenDefaults`
    WidgetCenter& center;

    /// Replaces the published snapshot and has the widgets read it. Failures are silent.
    void publish(const WidgetSnapshot& snapshot) const {
        WidgetSnapshotStore::save(snapshot, defaults);
        center.reloadAllTimelines();
    }
};

} // namespace quillmere
