#include "QuillmereKit/migration/ManualLedgerMigration.h"

#include "QuillmereKit/calculation/Fatal.h"
#include "QuillmereKit/calculation/TimeBankCalculator.h"
#include "QuillmereKit/migration/MarkerSearch.h"
#include "QuillmereKit/records/AppConstants.h"
#include "QuillmereKit/records/NoteValidation.h"
#include "QuillmereKit/records/SurvivorRules.h"
#include "QuillmereKit/records/WorkEntry.h"
#include "QuillmereKit/records/WorkSchedule.h"
#include "QuillmereKit/rules/AdjustmentCategoryValidation.h"

#include <algorithm>
#include <cmath>
#include <memory>
#include <vector>

namespace quillmere::ManualLedgerMigration {

namespace {

using platform::Instant;
using platform::store::Context;

/// Deletes all but the marker changed last. Answers whether there were several.
bool keepOne(Context& context, const std::vector<BalanceAdjustment*>& markers) {
    BalanceAdjustment* survivor = markers.front();
    for (BalanceAdjustment* marker : markers) {
        if (isOlderCopy(survivor->values(), marker->values())) {
            survivor = marker;
        }
    }
    for (BalanceAdjustment* marker : markers) {
        if (marker != survivor) {
            context.remove(*marker);
        }
    }
    return markers.size() > 1;
}

void stopRunning(const std::vector<WorkEntry*>& entries, Instant now) {
    for (WorkEntry* entry : entries) {
        if (entry->isRunning()) {
            entry->setEndedAt(std::max(entry->startedAt(), now));
            entry->setModifiedAt(now);
        }
    }
}

constexpr std::int64_t clampedBalance(std::int64_t minutes) {
    constexpr std::int64_t limit = AdjustmentCategoryValidation::maximumManualMinutes;
    return std::clamp(minutes, -limit, limit);
}

/// Worked without planned time, in whole minutes towards zero.
std::int64_t carriedMinutes(const std::vector<DayBalance>& days) {
    double seconds = 0;
    for (const DayBalance& day : days) {
        seconds += day.workedSeconds - day.expectedSeconds;
    }
    const double minutes = std::trunc(seconds / 60.0);
    if (!(std::abs(minutes) < 0x1p63)) {
        fatal("the tracked history adds up to more minutes than 64 bits hold");
    }
    return clampedBalance(static_cast<std::int64_t>(minutes));
}

void migrate(Context& context, TimeBankSettings& settings, const platform::Calendar& calendar,
             Instant now) {
    const auto entries = context.fetch<WorkEntry>();
    stopRunning(entries, now);
    const auto schedules = context.fetch<WorkSchedule>();
    const std::int64_t carried = carriedMinutes(
        TimeBankCalculator::dayBalances(entries, {}, schedules, settings, now, calendar));
    constexpr std::int64_t limit = AdjustmentCategoryValidation::maximumManualMinutes;
    // Clamped first so that no stored value can overflow; beyond twice the limit nothing changes.
    const std::int64_t present =
        std::clamp(settings.startingBalanceMinutes(), -2 * limit, 2 * limit);
    settings.setStartingBalanceMinutes(clampedBalance(present + carried));
    settings.setModifiedAt(now);
    context.insert(std::make_unique<BalanceAdjustment>(adjustmentID(), now, 0,
                                                       NoteValidation::normalized(""),
                                                       BalanceAdjustmentKind::manual, now, now));
}

} // namespace

const platform::Uuid& adjustmentID() {
    return AppConstants::manualLedgerMigrationAdjustmentID();
}

bool isCarryover(const BalanceAdjustmentValues& adjustment) {
    return adjustment.id == adjustmentID();
}

bool isCarryover(const BalanceAdjustment& adjustment) {
    return isCarryover(adjustment.values());
}

bool reconcile(Context& context, TimeBankSettings& settings, const platform::Calendar& calendar,
               Instant now, bool saveChanges) {
    MarkerSearch search(context);
    const auto markers = search.find();
    bool changed = false;
    if (!markers.empty()) {
        changed = keepOne(context, markers);
    } else if (settings.hasCompletedOnboarding()) {
        migrate(context, settings, calendar, now);
        changed = true;
    }
    if (saveChanges) {
        search.finish(changed);
    }
    return changed;
}

} // namespace quillmere::ManualLedgerMigration
