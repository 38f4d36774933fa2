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
    : WeekRecord(scheduleValues(id, effectiveFrom, weekdayMinutes, createdAt, modifiedAt)) {
}

std::unique_ptr<WorkSchedule> WorkSchedule::create(const platform::Clock& clock) {
    const platform::Instant now = clock.now();
    return std::make_unique<WorkSchedule>(platform::Uuid::random(), now, WeekdayPlan::defaultWeek,
                                          now, now);
}

} // namespace quillmere
