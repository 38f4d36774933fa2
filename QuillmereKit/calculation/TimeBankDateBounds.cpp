#include "QuillmereKit/calculation/TimeBankDateBounds.h"

#include <algorithm>

namespace quillmere::TimeBankDateBounds {

platform::Instant earliestCalculationDate(const platform::Calendar& calendar) {
    constexpr platform::Instant startOf2000InUtc{946684800};
    return calendar.startOfDay(platform::CivilDate{earliestCalculationYear, 1, 1})
        .value_or(startOf2000InUtc);
}

platform::Instant normalizedCalculationStartDate(platform::Instant date, platform::Instant through,
                                                 const platform::Calendar& calendar) {
    const platform::Instant start =
        calendar.startOfDay(std::max(earliestCalculationDate(calendar), date));
    return std::min(start, calendar.startOfDay(through));
}

} // namespace quillmere::TimeBankDateBounds
