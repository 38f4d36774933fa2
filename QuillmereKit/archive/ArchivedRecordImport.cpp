#include "QuillmereKit/archive/ArchivedRecordImport.h"

#include "QuillmereKit/maintenance/ActivityRepair.h"
#include "QuillmereKit/records/NoteValidation.h"
#include "QuillmereKit/rules/AdjustmentCategoryValidation.h"

#include <algorithm>
#include <utility>

namespace quillmere {

namespace {

using platform::Instant;

std::int64_t startingBalance(const TimeBankArchive::SettingsRecord& record) {
    constexpr std::int64_t limit = AdjustmentCategoryValidation::maximumManualMinutes;
    return std::clamp(record.startingBalanceMinutes, -limit, limit);
}

std::span<const std::int64_t> quickActions(const TimeBankArchive::SettingsRecord& record) {
    return record.quickActionMinutes ? std::span<const std::int64_t>(*record.quickActionMinutes)
                                     : QuickActionConfiguration::defaultMinutes;
}

std::string visibleKinds(const TimeBankArchive::SettingsRecord& record) {
    return record.visibleAdjustmentKindsRawValue.value_or(
        AdjustmentKindConfiguration::defaultRawValue());
}

std::string customCategories(const TimeBankArchive::SettingsRecord& record) {
    return record.customAdjustmentCategoriesRawValue.value_or(
        std::string(CustomAdjustmentCategoryConfiguration::defaultRawValue));
}

} // namespace

ArchivedRecordImport::ArchivedRecordImport(Instant exportedAt, Instant now)
    : exportedAt_(RecordTimestampValidation::normalizedModifiedAt(exportedAt, now)), now_(now) {
}

WorkEntryValues ArchivedRecordImport::values(const Entry& record) const {
    return {.id = record.id,
            .startedAt = record.startedAt,
            .endedAt = record.endedAt.value_or(std::max(record.startedAt, exportedAt_)),
            .breakMinutes = std::clamp<std::int64_t>(record.breakMinutes, 0,
                                                     ActivityRepair::maximumBreakMinutes),
            .note = NoteValidation::normalized(record.note),
            .createdAt = createdAt(record),
            .modifiedAt = modifiedAt(record)};
}

std::unique_ptr<WorkEntry> ArchivedRecordImport::make(const Entry& record) const {
    return std::make_unique<WorkEntry>(values(record));
}

void ArchivedRecordImport::replace(WorkEntry& stored, const Entry& record) const {
    WorkEntryValues taken = values(record);
    stored.setStartedAt(taken.startedAt);
    stored.setEndedAt(std::max(taken.startedAt, *taken.endedAt));
    stored.setBreakMinutes(taken.breakMinutes);
    stored.setNote(std::move(taken.note));
    stored.setCreatedAt(taken.createdAt);
    stored.setModifiedAt(taken.modifiedAt);
}

BalanceAdjustmentValues ArchivedRecordImport::values(const Adjustment& record) const {
    using namespace AdjustmentCategoryValidation;
    std::string kind = normalizedRawValue(record.kind);
    const std::int64_t minutes = normalizedMinutes(record.minutes, kind);
    return {.id = record.id,
            .date = record.date,
            .minutes = minutes,
            .note = NoteValidation::normalized(record.note),
            .kindRawValue = std::move(kind),
            .createdAt = createdAt(record),
            .modifiedAt = modifiedAt(record)};
}

std::unique_ptr<BalanceAdjustment> ArchivedRecordImport::make(const Adjustment& record) const {
    return std::make_unique<BalanceAdjustment>(values(record));
}

void ArchivedRecordImport::replace(BalanceAdjustment& stored, const Adjustment& record) const {
    BalanceAdjustmentValues taken = values(record);
    stored.setDate(taken.date);
    stored.setMinutes(taken.minutes);
    stored.setNote(std::move(taken.note));
    stored.setKindRawValue(std::move(taken.kindRawValue));
    stored.setCreatedAt(taken.createdAt);
    stored.setModifiedAt(taken.modifiedAt);
}

std::unique_ptr<WorkSchedule> ArchivedRecordImport::make(const Schedule& record) const {
    return std::make_unique<WorkSchedule>(record.id, record.effectiveFrom, record.weekdayMinutes,
                                          createdAt(record), modifiedAt(record));
}

void ArchivedRecordImport::replace(WorkSchedule& stored, const Schedule& record) const {
    stored.setEffectiveFrom(record.effectiveFrom);
    stored.setWeekdayMinutes(record.weekdayMinutes);
    stored.setCreatedAt(createdAt(record));
    stored.setModifiedAt(modifiedAt(record));
}

std::unique_ptr<TimeBankSettings> ArchivedRecordImport::make(const Settings& record) const {
    return std::make_unique<TimeBankSettings>(
        record.id, record.calculationStartDate, startingBalance(record), record.weekdayMinutes,
        quickActions(record), visibleKinds(record), customCategories(record),
        record.hasCompletedOnboarding, modifiedAt(record));
}

void ArchivedRecordImport::replace(TimeBankSettings& stored, const Settings& record) const {
    stored.setCalculationStartDate(record.calculationStartDate);
    stored.setStartingBalanceMinutes(startingBalance(record));
    stored.setWeekdayMinutes(record.weekdayMinutes);
    stored.setQuickActionMinutes(quickActions(record));
    stored.setVisibleAdjustmentKindsRawValue(visibleKinds(record));
    stored.setCustomAdjustmentCategoriesRawValue(customCategories(record));
    stored.setHasCompletedOnboarding(record.hasCompletedOnboarding);
    stored.setModifiedAt(modifiedAt(record));
}

} // namespace quillmere
