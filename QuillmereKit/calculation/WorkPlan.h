#pragma once

#include "Platform/calendar/Calendar.h"
#include "QuillmereKit/records/WeekdayMinutes.h"

#include <cstdint>
#include <span>
#include <vector>

namespace quillmere {

class TimeBankSettings;
class WorkSchedule;

/// Which week is planned on which day: of each day from which schedules apply the one that counts,
/// the settings' own week before the first.
class WorkPlan {
public:
    WorkPlan(const TimeBankSettings& settings, std::span<WorkSchedule* const> schedules,
             const platform::Calendar& calendar);

    /// Planned minutes of the day that contains the instant, 0 … 1440.
    [[nodiscard]] std::int64_t scheduledMinutes(platform::Instant on) const;

private:
    struct Period {
        platform::Instant effectiveDay;
        WeekdayMinutes week;
    };

    platform::Calendar calendar_;
    WeekdayMinutes settingsWeek_;
    std::vector<Period> periods_; ///< ascending, one a day
};

} // namespace quillmere
