#pragma once

#include "Platform/store/Context.h"
#include "QuillmereKit/records/TimeBankSettings.h"

namespace quillmere {

/// The steps between opening a store and using it. Time and calendar are the context's.
namespace StorePreparation {

/// Runs every repair, each saving what it changes. Answers the settings record. Throws
/// `StoreError`; the caller rolls back what was not saved.
TimeBankSettings& prepare(platform::store::Context& context);

/// Completes setup: the time bank starts today, without planned working time. Then runs `prepare`,
/// which saves. Throws `StoreError`; the caller rolls back, which undoes the completion unless an
/// earlier repair had saved it.
void completeOnboarding(platform::store::Context& context, TimeBankSettings& settings);

} // namespace StorePreparation

} // namespace quillmere
