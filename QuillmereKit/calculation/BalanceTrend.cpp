#include "QuillmereKit/calculation/BalanceTrend.h"

#include "QuillmereKit/calculation/TimeBankCalculator.h"
#include "QuillmereKit/records/LedgerRow.h"

#include <algorithm>
#include <cmath>
#include <optional>

namespace quillmere::BalanceTrend {

namespace {

/// The start of the day `days` days after the one that begins at `dayStart`.
std::optional<platform::Instant> shifted(platform::Instant dayStart, int days,
                                         const platform::Calendar& calendar) {
    const auto instant = calendar.addingDays(dayStart, days);
    return instant ? std::optional(calendar.startOfDay(*instant)) : std::nullopt;
}

std::vector<platform::Instant> moments(BalanceTrendRange range, platform::Instant now,
                                       const platform::Calendar& calendar) {
    const platform::Instant today = calendar.startOfDay(now);
    std::vector<platform::Instant> ends;
    for (int back = dayCount(range) - 1; back >= 0; --back) {
        const auto dayStart = shifted(today, -back, calendar);
        const auto nextDay = dayStart ? shifted(*dayStart, 1, calendar) : std::nullopt;
        if (nextDay) {
            ends.push_back(calendar.isSameDay(*dayStart, today) ? now : *nextDay - 1);
        }
    }
    return ends;
}

} // namespace

std::vector<double> series(std::span<const LedgerRow> adjustments,
                           std::int64_t startingBalanceMinutes, BalanceTrendRange range,
                           platform::Instant now, const platform::Calendar& calendar) {
    return TimeBankCalculator::ledgerBalancesSeconds(adjustments, startingBalanceMinutes,
                                                     moments(range, now, calendar));
}

ValueDomain valueDomain(std::span<const double> values) {
    constexpr double hour = 3600;
    constexpr double smallestPadding = 900;
    const double lower = values.empty() ? 0 : std::min(std::ranges::min(values), 0.0);
    const double upper = values.empty() ? 0 : std::max(std::ranges::max(values), 0.0);
    const double span = upper - lower;
    const double padding = span <= hour ? smallestPadding : std::max(0.12 * span, smallestPadding);
    const double bottom = std::floor((lower - padding) / hour) * hour;
    const double top = std::ceil((upper + padding) / hour) * hour;
    return {bottom, top <= bottom ? bottom + hour : top};
}

} // namespace quillmere::BalanceTrend
