#pragma once

#include "Platform/base/Clock.h"
#include "Platform/entitlements/Entitlements.h"
#include "Platform/preferences/Preferences.h"
#include "QuillmereKit/widget/WidgetSnapshot.h"

namespace quillmere {

/// Where the snapshot is published: one value in the preferences widgets share.
namespace WidgetSnapshotStore {

/// The preferences to use: those of the application group when the build may use it and they could
/// be opened (`suite` is not null), else the standard ones.
[[nodiscard]] platform::Preferences& chosenDefaults(const platform::Entitlements& entitlements,
                                                    platform::Preferences* suite,
                                                    platform::Preferences& standard);

/// The published snapshot, `WidgetSnapshot::empty` when there is none that reads.
[[nodiscard]] WidgetSnapshot load(const platform::Preferences& defaults,
                                  const platform::Clock& clock);

/// Replaces the published snapshot. Failures are silent.
void save(const WidgetSnapshot& snapshot, platform::Preferences& defaults);

} // namespace WidgetSnapshotStore

} // namespace quillmere
