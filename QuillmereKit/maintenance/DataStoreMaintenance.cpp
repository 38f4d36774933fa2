#include "QuillmereKit/maintenance/DataStoreMaintenance.h"

#include "QuillmereKit/maintenance/StoredBalance.h"
#include "QuillmereKit/migration/ManualLedgerMigration.h"
#include "QuillmereKit/records/ActionReceipt.h"
#include "QuillmereKit/records/BalanceAdjustment.h"
#include "QuillmereKit/records/WorkEntry.h"
#include "QuillmereKit/records/WorkSchedule.h"

namespace quillmere::DataStoreMaintenance {

TimeBankSettings& reconcileData(platform::store::Context& context,
                                const platform::Calendar& calendar, platform::Instant now,
                                bool saveChanges) {
    reconcileActivity(context, now, saveChanges);
    TimeBankSettings& settings = reconcileConfiguration(context, calendar, now, saveChanges);
    ManualLedgerMigration::reconcile(context, settings, calendar, now, saveChanges);
    return settings;
}

void eraseAll(platform::store::Context& context) {
    context.removeAll<WorkEntry>();
    context.removeAll<BalanceAdjustment>();
    context.removeAll<WorkSchedule>();
    context.removeAll<TimeBankSettings>();
    context.removeAll<ActionReceipt>();
    StoredBalance::forget(context);
    context.save();
}

} // namespace quillmere::DataStoreMaintenance
