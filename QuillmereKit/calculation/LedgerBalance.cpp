#include "QuillmereKit/calculation/MinuteSum.h"
#include "QuillmereKit/calculation/TimeBankCalculator.h"
#include "QuillmereKit/records/BalanceAdjustment.h"
#include "QuillmereKit/records/LedgerRow.h"

#include <algorithm>

namespace quillmere::TimeBankCalculator {

namespace {

using Rows = std::span<const LedgerRow>;

double secondsOf(std::int64_t minutes) {
    return static_cast<double>(minutes) * 60.0;
}

Rows rowsThrough(Rows rows, platform::Instant through) {
    const auto first = std::ranges::partition_point(
        rows, [through](const LedgerRow& row) { return row.date > through; });
    return {first, rows.end()};
}

void add(Rows rows, MinuteSum& sum) {
    for (const LedgerRow& row : rows) {
        sum.add(row.minutes);
    }
}

/// For amounts beyond what whole seconds can hold: the sum as defined, change by change.
double orderedSeconds(Rows rows) {
    double seconds = 0;
    for (const LedgerRow& row : rows) {
        seconds += secondsOf(row.minutes);
    }
    return seconds;
}

} // namespace

double ledgerBalanceSeconds(Rows adjustments, std::int64_t startingBalanceMinutes,
                            platform::Instant through) {
    return ledgerBalancesSeconds(adjustments, startingBalanceMinutes, {&through, 1}).front();
}

double ledgerBalanceSeconds(std::span<BalanceAdjustment* const> adjustments,
                            std::int64_t startingBalanceMinutes, platform::Instant through) {
    double seconds = 0;
    for (const BalanceAdjustment* adjustment : adjustments) {
        if (adjustment->date() <= through) {
            seconds += secondsOf(adjustment->minutes());
        }
    }
    return secondsOf(startingBalanceMinutes) + seconds;
}

std::vector<double> ledgerBalancesSeconds(Rows adjustments, std::int64_t startingBalanceMinutes,
                                          std::span<const platform::Instant> through) {
    std::vector<double> balances;
    balances.reserve(through.size());
    MinuteSum sum;
    Rows counted = adjustments.last(0);
    for (const platform::Instant moment : through) {
        const Rows rows = rowsThrough(adjustments, moment);
        add(rows.first(rows.size() - counted.size()), sum);
        counted = rows;
        balances.push_back(secondsOf(startingBalanceMinutes) +
                           (sum.isExact() ? sum.seconds() : orderedSeconds(rows)));
    }
    return balances;
}

} // namespace quillmere::TimeBankCalculator
