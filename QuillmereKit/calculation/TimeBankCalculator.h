#pragma once

#include "Platform/calendar/Calendar.h"
#include "QuillmereKit/calculation/DayBalance.h"

#include <cstdint>
#include <span>
#include <vector>

namespace quillmere {

class BalanceAdjustment;
class TimeBankSettings;
class WorkEntry;
class WorkSchedule;
struct LedgerRow;

/// Turns records into seconds. Two models: the ledger (the starting balance and every change up to
/// a moment), which is the balance shown everywhere, and the tracked one (worked against planned
/// time, day by day), which only the one-time migration still asks for.
///
/// Pure functions of their arguments, on any thread that may read the records. Records come in any
/// order; rows must be in their own order, newest first.
namespace TimeBankCalculator {

/// Starting balance plus every change dated at or before `through`.
[[nodiscard]] double ledgerBalanceSeconds(std::span<const LedgerRow> adjustments,
                                          std::int64_t startingBalanceMinutes,
                                          platform::Instant through);
[[nodiscard]] double ledgerBalanceSeconds(std::span<BalanceAdjustment* const> adjustments,
                                          std::int64_t startingBalanceMinutes,
                                          platform::Instant through);

/// The balance at each of several moments, which ascend: one pass over the rows for all of them.
[[nodiscard]] std::vector<double> ledgerBalancesSeconds(std::span<const LedgerRow> adjustments,
                                                        std::int64_t startingBalanceMinutes,
                                                        std::span<const platform::Instant> through);

/// One value for each day the interval touches, ascending, days without changes included. The
/// interval's end is not part of it. Empty for an inverted interval.
[[nodiscard]] std::vector<DayBalance> ledgerDayBalances(std::span<const LedgerRow> adjustments,
                                                        platform::DateInterval in,
                                                        const platform::Calendar& calendar);
[[nodiscard]] std::vector<DayBalance>
ledgerDayBalances(std::span<BalanceAdjustment* const> adjustments, platform::DateInterval in,
                  const platform::Calendar& calendar);

/// The tracked days from the settings' calculation start (not before 2000) to the day of `through`.
/// Overlapping and touching entries count once.
[[nodiscard]] std::vector<DayBalance>
dayBalances(std::span<WorkEntry* const> entries, std::span<BalanceAdjustment* const> adjustments,
            std::span<WorkSchedule* const> schedules, const TimeBankSettings& settings,
            platform::Instant through, const platform::Calendar& calendar);

/// The settings' starting balance plus the sum of `dayBalances`.
[[nodiscard]] double balanceSeconds(std::span<WorkEntry* const> entries,
                                    std::span<BalanceAdjustment* const> adjustments,
                                    std::span<WorkSchedule* const> schedules,
                                    const TimeBankSettings& settings, platform::Instant through,
                                    const platform::Calendar& calendar);

/// Planned minutes of a day, 0 … 1440: from the schedule in effect (the latest day it applies from,
/// then modified last, created last, greatest identifier), else from the settings.
[[nodiscard]] std::int64_t scheduledMinutes(platform::Instant on, const TimeBankSettings& settings,
                                            std::span<WorkSchedule* const> schedules,
                                            const platform::Calendar& calendar);

/// Seconds one entry worked within an interval, its break shared out in proportion.
[[nodiscard]] double workedSeconds(const WorkEntry& entry, platform::DateInterval during,
                                   platform::Instant asOf);

} // namespace TimeBankCalculator

} // namespace quillmere
