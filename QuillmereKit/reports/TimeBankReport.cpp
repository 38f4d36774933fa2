#include "QuillmereKit/reports/TimeBankReport.h"

#include <functional>
#include <numeric>

namespace quillmere {

namespace {

template <class Seconds>
double total(const std::vector<DayBalance>& days, Seconds seconds) {
    return std::accumulate(days.begin(), days.end(), 0.0, [&](double sum, const DayBalance& day) {
        return sum + std::invoke(seconds, day);
    });
}

} // namespace

double TimeBankReport::workedSeconds() const {
    return total(days, &DayBalance::workedSeconds);
}

double TimeBankReport::adjustmentSeconds() const {
    return total(days, &DayBalance::adjustmentSeconds);
}

double TimeBankReport::expectedSeconds() const {
    return total(days, &DayBalance::expectedSeconds);
}

double TimeBankReport::balanceSeconds() const {
    return total(days, &DayBalance::balanceSeconds);
}

} // namespace quillmere
