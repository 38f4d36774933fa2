#pragma once

#include "Platform/calendar/Calendar.h"
#include "QuillmereKit/reports/LedgerTotals.h"
#include "QuillmereKit/reports/ReportGranularity.h"
#include "QuillmereKit/reports/TimeBankReport.h"

#include <span>
#include <string>
#include <vector>

namespace quillmere {

class BalanceAdjustment;
struct LedgerRow;

/// Weeks and months out of daily results, and the texts that carry them to a spreadsheet. Pure
/// functions of their arguments, on any thread that may read the records. Records come in any
/// order; rows must be in their own order, newest first.
///
/// Both texts have a header and a line for each day, comma-separated without quoting, each line
/// ended by a line feed. Dates are "yyyy-MM-dd" of the calendar's zone and calendar system; hours
/// have a point and two decimals in every region.
namespace TimeBankReporting {

/// The period that contains the instant with those of the days that begin in it, in the order
/// given.
[[nodiscard]] TimeBankReport report(std::span<const DayBalance> days, platform::Instant containing,
                                    ReportGranularity granularity,
                                    const platform::Calendar& calendar);

/// Every day of the report: worked, adjustment, planned and difference.
[[nodiscard]] std::string csv(const TimeBankReport& report, const platform::Calendar& calendar);

/// The days of the interval that have a change, ascending: added, removed and net.
[[nodiscard]] std::string ledgerCSV(std::span<const LedgerRow> adjustments,
                                    platform::DateInterval in, const platform::Calendar& calendar);
[[nodiscard]] std::string ledgerCSV(std::span<BalanceAdjustment* const> adjustments,
                                    platform::DateInterval in, const platform::Calendar& calendar);

/// What was added and taken within the interval.
[[nodiscard]] LedgerTotals ledgerTotals(std::span<const LedgerRow> adjustments,
                                        platform::DateInterval in);

struct HourRange {
    double lower = 0;
    double upper = 0;

    friend bool operator==(const HourRange&, const HourRange&) = default;
};

/// The vertical range for a chart of the days' balances: zero inside, a tenth of headroom where
/// there is data, at least an hour where all of it lies on one side.
[[nodiscard]] HourRange chartHourRange(const TimeBankReport& report);

} // namespace TimeBankReporting

} // namespace quillmere
