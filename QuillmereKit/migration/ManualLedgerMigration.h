#pragma once

#include "Platform/base/Uuid.h"
#include "Platform/calendar/Calendar.h"
#include "Platform/store/Context.h"
#include "QuillmereKit/records/BalanceAdjustment.h"
#include "QuillmereKit/records/TimeBankSettings.h"

namespace quillmere {

/// Folds the tracked history of an older model into the starting balance, once, and leaves a
/// marker: a change of 0 minutes with a fixed identifier.
namespace ManualLedgerMigration {

[[nodiscard]] const platform::Uuid& adjustmentID();

/// Whether this is the marker.
[[nodiscard]] bool isCarryover(const BalanceAdjustmentValues& adjustment);
[[nodiscard]] bool isCarryover(const BalanceAdjustment& adjustment);

/// Migrates when there is no marker and setup is complete; otherwise reduces markers to one.
/// Answers whether anything was changed, and saves then if `saveChanges`. Throws `StoreError`; the
/// caller rolls back.
bool reconcile(platform::store::Context& context, TimeBankSettings& settings,
               const platform::Calendar& calendar, platform::Instant now, bool saveChanges);

} // namespace ManualLedgerMigration

} // namespace quillmere
