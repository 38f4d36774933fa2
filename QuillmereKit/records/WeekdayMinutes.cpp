#include "QuillmereKit/records/WeekdayMinutes.h"

#include <algorithm>

namespace quillmere::WeekdayPlan {

namespace {

std::int64_t clampedDay(std::int64_t minutes) {
    return std::clamp<std::int64_t>(minutes, 0, maximumMinutes);
}

} // namespace

WeekdayMinutes clamped(std::span<const std::int64_t> minutes, const WeekdayMinutes& padding) {
    WeekdayMinutes result = padding;
    std::ranges::copy(minutes.first(std::min(minutes.size(), result.size())), result.begin());
    std::ranges::transform(result, result.begin(), clampedDay);
    return result;
}

std::size_t weekdayIndex(platform::Instant instant, const platform::Calendar& calendar) {
    return static_cast<std::size_t>((calendar.weekday(instant) + 5) % 7);
}

std::int64_t scheduledMinutes(const WeekdayMinutes& plan, platform::Instant on,
                              const platform::Calendar& calendar) {
    return clampedDay(plan.at(weekdayIndex(on, calendar)));
}

} // namespace quillmere::WeekdayPlan
