#include "QuillmereKit/archive/TimeBankArchive.h"

#include "QuillmereKit/records/BalanceAdjustment.h"
#include "QuillmereKit/records/TimeBankSettings.h"
#include "QuillmereKit/records/WorkEntry.h"
#include "QuillmereKit/records/WorkSchedule.h"

#include <algorithm>

namespace quillmere {

namespace {

using platform::Instant;

template <class Minutes>
std::vector<std::int64_t> list(const Minutes& minutes) {
    return {minutes.begin(), minutes.end()};
}

TimeBankArchive::WorkEntryRecord archived(const WorkEntryValues& values) {
    return {values.id,   values.startedAt, values.endedAt,   values.breakMinutes,
            values.note, values.createdAt, values.modifiedAt};
}

TimeBankArchive::BalanceAdjustmentRecord archived(const BalanceAdjustmentValues& values) {
    return {values.id,           values.date,      values.minutes,   values.note,
            values.kindRawValue, values.createdAt, values.modifiedAt};
}

TimeBankArchive::ScheduleRecord archived(const WorkScheduleValues& values) {
    return {values.id, values.effectiveFrom, list(values.weekdayMinutes()), values.createdAt,
            values.modifiedAt};
}

TimeBankArchive::SettingsRecord archived(const TimeBankSettingsValues& values) {
    return {.id = values.id,
            .calculationStartDate = values.calculationStartDate,
            .startingBalanceMinutes = values.startingBalanceMinutes,
            .weekdayMinutes = list(values.weekdayMinutes()),
            .quickActionMinutes = list(values.quickActionMinutes()),
            .visibleAdjustmentKindsRawValue = values.visibleAdjustmentKindsRawValue,
            .customAdjustmentCategoriesRawValue = values.customAdjustmentCategoriesRawValue,
            .hasCompletedOnboarding = values.hasCompletedOnboarding,
            .modifiedAt = values.modifiedAt};
}

template <class ArchivedRecord, class R>
void copyTo(std::vector<ArchivedRecord>& archive, std::span<R* const> records) {
    archive.reserve(records.size());
    for (const R* record : records) {
        archive.push_back(archived(record->values()));
    }
}

/// A total order also where a stored date is not a number: such dates come last.
template <auto Date, class ArchivedRecord>
void sortByDate(std::vector<ArchivedRecord>& records) {
    std::ranges::sort(records, [](const ArchivedRecord& a, const ArchivedRecord& b) {
        const auto order = std::weak_order((a.*Date).secondsSince1970, (b.*Date).secondsSince1970);
        return order != 0 ? order < 0 : a.id < b.id;
    });
}

} // namespace

TimeBankArchive::TimeBankArchive(Instant when, std::span<WorkEntry* const> entries,
                                 std::span<BalanceAdjustment* const> adjustments,
                                 std::span<WorkSchedule* const> plans,
                                 std::span<TimeBankSettings* const> settingsRecords)
    : exportedAt(when) {
    copyTo(workEntries, entries);
    copyTo(balanceAdjustments, adjustments);
    copyTo(schedules, plans);
    copyTo(settings, settingsRecords);
    sortByDate<&WorkEntryRecord::startedAt>(workEntries);
    sortByDate<&BalanceAdjustmentRecord::date>(balanceAdjustments);
    sortByDate<&ScheduleRecord::effectiveFrom>(schedules);
    std::ranges::sort(settings, {}, &SettingsRecord::id);
}

TimeBankArchive TimeBankArchive::ofStore(platform::store::Context& context, Instant exportedAt) {
    context.refresh();
    for (;;) {
        const platform::store::Revision revision = context.revision();
        TimeBankArchive archive(exportedAt, context.fetch<WorkEntry>(),
                                context.fetch<BalanceAdjustment>(), context.fetch<WorkSchedule>(),
                                context.fetch<TimeBankSettings>());
        context.refresh();
        if (context.revision() == revision) {
            return archive;
        }
    }
}

std::size_t TimeBankArchive::recordCount() const {
    return workEntries.size() + balanceAdjustments.size() + schedules.size() + settings.size();
}

} // namespace quillmere
