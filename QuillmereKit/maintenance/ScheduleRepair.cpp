#include "QuillmereKit/maintenance/ScheduleRepair.h"

#include "QuillmereKit/records/RecordTimestampValidation.h"
#include "QuillmereKit/records/SurvivorRules.h"
#include "QuillmereKit/records/WorkSchedule.h"

#include <algorithm>
#include <map>
#include <vector>

namespace quillmere {

using platform::Instant;
using platform::store::RowKey;

struct ScheduleRepair::Schedule {
    RowKey key;
    WorkScheduleValues values;
};

ScheduleRepair::ScheduleRepair(platform::store::Context& context,
                               const platform::Calendar& calendar, Instant now)
    : context_(context), calendar_(calendar), now_(now), memory_(context, "repaired.schedules") {
    mark_.revision = context.revision();
    mark_.finding = calendar.timeZone().name();
}

bool ScheduleRepair::isClean() {
    const auto last = memory_.recall(now_);
    if (!last || last->finding != mark_.finding ||
        !context_.fetchChangedSince<WorkSchedule>(last->revision).empty()) {
        return false;
    }
    mark_.newestModifiedAt = last->newestModifiedAt;
    return true;
}

bool ScheduleRepair::run() {
    if (isClean()) {
        return false;
    }
    std::vector<Schedule> schedules;
    context_.scan<WorkSchedule>({}, [&](RowKey key, const WorkScheduleValues& values) {
        schedules.push_back({key, values});
    });
    looked_ = schedules.size();
    bool changed = false;
    std::map<Instant, const Schedule*> survivors;
    for (Schedule& schedule : schedules) {
        changed |= repairTimes(schedule);
        const Schedule*& survivor = survivors[calendar_.startOfDay(schedule.values.effectiveFrom)];
        if (survivor == nullptr) {
            survivor = &schedule;
            continue;
        }
        const Schedule* loser = &schedule;
        if (isOlderCopy(survivor->values, schedule.values)) {
            std::swap(survivor, loser);
        }
        changed |= remove(*loser);
    }
    for (const auto& [day, survivor] : survivors) {
        changed |= repairSurvivor(*survivor, day);
    }
    return changed;
}

bool ScheduleRepair::repairTimes(Schedule& schedule) {
    using namespace RecordTimestampValidation;
    WorkScheduleValues& values = schedule.values;
    const WorkScheduleValues stored = values;
    values.modifiedAt = normalizedModifiedAt(stored.modifiedAt, now_);
    values.createdAt = normalizedCreatedAt(stored.createdAt, values.modifiedAt);
    mark_.newestModifiedAt = std::max(mark_.newestModifiedAt, values.modifiedAt);
    WorkSchedule* record = platform::store::sameValue(values.modifiedAt, stored.modifiedAt) &&
                                   platform::store::sameValue(values.createdAt, stored.createdAt)
                               ? nullptr
                               : context_.find<WorkSchedule>(schedule.key);
    if (record != nullptr) {
        record->setModifiedAt(values.modifiedAt);
        record->setCreatedAt(values.createdAt);
    }
    return record != nullptr;
}

bool ScheduleRepair::repairSurvivor(const Schedule& schedule, Instant day) {
    const WeekdayMinutes week = schedule.values.weekdayMinutes();
    const bool startsElsewhere = schedule.values.effectiveFrom != day;
    const bool hasBadWeek = WeekdayPlan::clamped(week) != week;
    WorkSchedule* record =
        startsElsewhere || hasBadWeek ? context_.find<WorkSchedule>(schedule.key) : nullptr;
    if (record == nullptr) {
        return false;
    }
    record->setEffectiveFrom(day);
    if (hasBadWeek) {
        record->setWeekdayMinutes(week);
        record->setModifiedAt(now_);
    }
    return true;
}

bool ScheduleRepair::remove(const Schedule& schedule) {
    if (WorkSchedule* record = context_.find<WorkSchedule>(schedule.key)) {
        context_.remove(*record);
    }
    return true;
}

} // namespace quillmere
