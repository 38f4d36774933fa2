#include "QuillmereKit/records/WorkSchedule.h"

namespace quillmere {

WeekdayMinutes WorkScheduleValues::weekdayMinutes() const {
    return {mondayMinutes, tuesdayMinutes,  wednesdayMinutes, thursdayMinutes,
            fridayMinutes, saturdayMinutes, sundayMinutes};
}

namespace {

WorkScheduleValues scheduleValues(platform::Uuid id, platform::Instant effectiveFrom,
                                  std::span<const std::int64_t> weekdayMinutes,
                                  platform::Instant createdAt, platform::Instant modifiedAt) {
    const WeekdayMinutes week = WeekdayPlan::clamped(weekdayMinutes);
    return {id,      effectiveFrom, week[0], week[1],   week[2],   week[3],
            week[4], week[5],       week[6], createdAt, modifiedAt};
}

} // namespace

WorkSchedule::WorkSchedule(platform::Uuid id, platform::Instant effectiveFrom,
                           std::span<const std::int64_t> weekdayMinutes,
                           platform::Instant createdAt, platform::Instant modifiedAt)
    : Record(scheduleValues(id, effectiveFrom, weekdayMinutes, createdAt, modifiedAt)) {
}

std::unique_ptr<WorkSchedule> WorkSchedule::create(const platform::Clock& clock) {
    const platform::Instant now = clock.now();
    return std::make_unique<WorkSchedule>(platform::Uuid::random(), now, WeekdayPlan::defaultWeek,
                                          now, now);
}

void WorkSchedule::setWeekdayMinutes(std::span<const std::int64_t> minutes) {
    const WeekdayMinutes week = WeekdayPlan::clamped(minutes);
    assign<&Values::mondayMinutes>(week[0]);
    assign<&Values::tuesdayMinutes>(week[1]);
    assign<&Values::wednesdayMinutes>(week[2]);
    assign<&Values::thursdayMinutes>(week[3]);
    assign<&Values::fridayMinutes>(week[4]);
    assign<&Values::saturdayMinutes>(week[5]);
    assign<&Values::sundayMinutes>(week[6]);
}

std::int64_t WorkSchedule::scheduledMinutes(platform::Instant on,
                                            const platform::Calendar& calendar) const {
    return WeekdayPlan::scheduledMinutes(weekdayMinutes(), on, calendar);
}

} // namespace quillmere
