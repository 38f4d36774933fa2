#include "QuillmereKit/calculation/TimeBankDateBounds.h"
#include "QuillmereKit/maintenance/DataStoreMaintenance.h"
#include "QuillmereKit/maintenance/ScheduleRepair.h"
#include "QuillmereKit/records/RecordTimestampValidation.h"
#include "QuillmereKit/records/SurvivorRules.h"
#include "QuillmereKit/rules/AdjustmentCategoryValidation.h"

#include <algorithm>
#include <vector>

namespace quillmere::DataStoreMaintenance {

namespace {

using platform::Instant;
using platform::store::Context;

bool repairTimes(const std::vector<TimeBankSettings*>& records, Instant now) {
    bool changed = false;
    for (TimeBankSettings* settings : records) {
        const Instant modifiedAt =
            RecordTimestampValidation::normalizedModifiedAt(settings->modifiedAt(), now);
        if (!platform::store::sameValue(modifiedAt, settings->modifiedAt())) {
            settings->setModifiedAt(modifiedAt);
            changed = true;
        }
    }
    return changed;
}

/// Deletes all but the one that outranks the others. Precondition: there is one.
TimeBankSettings& keepSurvivor(Context& context, const std::vector<TimeBankSettings*>& records) {
    TimeBankSettings* survivor = records.front();
    for (TimeBankSettings* settings : records) {
        if (ranksBelow(survivor->values(), settings->values())) {
            survivor = settings;
        }
    }
    for (TimeBankSettings* settings : records) {
        if (settings != survivor) {
            context.remove(*settings);
        }
    }
    return *survivor;
}

TimeBankSettingsValues normalized(const TimeBankSettingsValues& values, Instant currentTime,
                                  const platform::Calendar& calendar) {
    constexpr std::int64_t maximumBalance = AdjustmentCategoryValidation::maximumManualMinutes;
    const TimeBankSettings canonical(
        values.id,
        TimeBankDateBounds::normalizedCalculationStartDate(values.calculationStartDate, currentTime,
                                                           calendar),
        std::clamp(values.startingBalanceMinutes, -maximumBalance, maximumBalance),
        values.weekdayMinutes(), values.quickActionMinutes(), values.visibleAdjustmentKindsRawValue,
        values.customAdjustmentCategoriesRawValue, values.hasCompletedOnboarding,
        values.modifiedAt);
    return canonical.values();
}

bool normalize(TimeBankSettings& settings, Instant now, Instant currentTime,
               const platform::Calendar& calendar) {
    const TimeBankSettingsValues values = normalized(settings.values(), currentTime, calendar);
    if (values == settings.values()) {
        return false;
    }
    settings.setCalculationStartDate(values.calculationStartDate);
    settings.setWeekdayMinutes(values.weekdayMinutes());
    settings.setStartingBalanceMinutes(values.startingBalanceMinutes);
    settings.setQuickActionMinutes(values.quickActionMinutes());
    settings.setVisibleAdjustmentKindsRawValue(values.visibleAdjustmentKindsRawValue);
    settings.setCustomAdjustmentCategoriesRawValue(values.customAdjustmentCategoriesRawValue);
    settings.setModifiedAt(now);
    return true;
}

} // namespace

TimeBankSettings& reconcileConfiguration(Context& context, const platform::Calendar& calendar,
                                         Instant now, bool saveChanges) {
    const auto records = context.fetch<TimeBankSettings>();
    bool changed = repairTimes(records, now) || records.size() != 1;
    TimeBankSettings& settings = records.empty() ? context.insert(TimeBankSettings::create(now))
                                                 : keepSurvivor(context, records);
    changed |= normalize(settings, now, context.clock().now(), calendar);
    ScheduleRepair schedules(context, calendar, now);
    changed |= schedules.run();
    if (saveChanges) {
        schedules.finish(changed);
    }
    return settings;
}

} // namespace quillmere::DataStoreMaintenance
