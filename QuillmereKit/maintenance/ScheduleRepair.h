#pragma once

#include "Platform/calendar/Calendar.h"
#include "Platform/store/Context.h"
#include "QuillmereKit/maintenance/RepairMemory.h"

#include <cstddef>

namespace quillmere {

/// Repairs the schedules' times and weeks and keeps one for each day from which schedules apply.
/// Looks at all of them, or at none when nothing was written since the last clean pass in the same
/// zone.
class ScheduleRepair {
public:
    ScheduleRepair(platform::store::Context& context, const platform::Calendar& calendar,
                   platform::Instant now);

    /// Answers whether anything was changed; the caller saves, with `finish`.
    bool run();

    /// Ends a pass that may save; see `RepairMemory::finish`.
    void finish(bool changed) const { memory_.finish(mark_, changed, looked_); }

private:
    struct Schedule;

    /// Whether nothing needs a look; keeps what the last mark knows.
    bool isClean();
    bool repairTimes(Schedule& schedule);
    bool repairSurvivor(const Schedule& schedule, platform::Instant day);
    bool remove(const Schedule& schedule);

    platform::store::Context& context_;
    const platform::Calendar& calendar_;
    platform::Instant now_;
    RepairMemory memory_;
    RepairMark mark_;
    std::size_t looked_ = 0;
};

} // namespace quillmere
