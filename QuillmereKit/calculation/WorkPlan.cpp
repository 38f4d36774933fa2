#include "QuillmereKit/calculation/WorkPlan.h"

#include "QuillmereKit/records/SurvivorRules.h"
#include "QuillmereKit/records/TimeBankSettings.h"
#include "QuillmereKit/records/WorkSchedule.h"

#include <algorithm>
#include <map>

namespace quillmere {

WorkPlan::WorkPlan(const TimeBankSettings& settings, std::span<WorkSchedule* const> schedules,
                   const platform::Calendar& calendar)
    : calendar_(calendar), settingsWeek_(settings.weekdayMinutes()) {
    std::map<platform::Instant, const WorkSchedule*> winners;
    for (const WorkSchedule* schedule : schedules) {
        const WorkSchedule*& winner = winners[calendar.startOfDay(schedule->effectiveFrom())];
        if (winner == nullptr || isOlderCopy(winner->values(), schedule->values())) {
            winner = schedule;
        }
    }
    for (const auto& [day, schedule] : winners) {
        periods_.push_back({day, schedule->weekdayMinutes()});
    }
}

std::int64_t WorkPlan::scheduledMinutes(platform::Instant on) const {
    const platform::Instant day = calendar_.startOfDay(on);
    const auto next = std::ranges::partition_point(
        periods_, [day](const Period& period) { return period.effectiveDay <= day; });
    const WeekdayMinutes& week = next == periods_.begin() ? settingsWeek_ : std::prev(next)->week;
    return WeekdayPlan::scheduledMinutes(week, day, calendar_);
}

} // namespace quillmere
