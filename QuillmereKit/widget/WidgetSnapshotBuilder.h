#pragma once

#include "Platform/base/Instant.h"
#include "Platform/preferences/Preferences.h"
#include "Platform/store/Context.h"
#include "QuillmereKit/widget/WidgetSnapshot.h"

namespace quillmere {

namespace WidgetSnapshotBuilder {

/// Repairs the store, saving what that changes (with the time of the context's clock), and sums it
/// up as of `now`. Throws `StoreError`; the caller then rolls the context back.
[[nodiscard]] WidgetSnapshot make(platform::store::Context& context, platform::Instant now);

/// `make`, then publishes the snapshot; answers it.
WidgetSnapshot save(platform::store::Context& context, platform::Instant now,
                    platform::Preferences& defaults);

} // namespace WidgetSnapshotBuilder

} // namespace quillmere
