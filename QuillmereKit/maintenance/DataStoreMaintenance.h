#pragma once

#include "Platform/calendar/Calendar.h"
#include "Platform/store/Context.h"
#include "QuillmereKit/records/TimeBankSettings.h"

namespace quillmere {

/// Brings whatever arrived in a store back to what everyone relies on. Passes assign only values
/// that differ; they save when `saveChanges` and something changed, otherwise the caller commits.
/// All throw `StoreError`; the caller rolls back.
namespace DataStoreMaintenance {

/// Repairs work entries and changes: ranges, notes, categories, timestamps. Deletes nothing.
void reconcileActivity(platform::store::Context& context, platform::Instant now, bool saveChanges);

/// Repairs settings and schedules, reduces the settings to one record (made with the defaults when
/// there is none) and the schedules to one a day. Answers the settings record. The current day,
/// which bounds the calculation start, is that of the context's clock.
TimeBankSettings& reconcileConfiguration(platform::store::Context& context,
                                         const platform::Calendar& calendar, platform::Instant now,
                                         bool saveChanges);

/// Both, then the ledger migration. Answers the settings record.
TimeBankSettings& reconcileData(platform::store::Context& context,
                                const platform::Calendar& calendar, platform::Instant now,
                                bool saveChanges);

/// Deletes every record and saves.
void eraseAll(platform::store::Context& context);

} // namespace DataStoreMaintenance

} // namespace quillmere
