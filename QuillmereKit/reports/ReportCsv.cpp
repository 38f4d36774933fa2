#include "Platform/calendar/DateText.h"
#include "Platform/calendar/DayTable.h"
#include "QuillmereKit/calculation/LedgerDayWalk.h"
#include "QuillmereKit/reports/TimeBankReporting.h"

#include <array>
#include <charconv>
#include <initializer_list>
#include <string_view>

namespace quillmere::TimeBankReporting {

namespace {

using platform::Calendar;
using platform::DateInterval;
using platform::Instant;

/// The lines of a text, each a day and its durations.
class CsvLines {
public:
    CsvLines(std::string_view header, const Calendar& calendar) : dates_(calendar), text_(header) {
        text_ += '\n';
    }

    void add(Instant day, std::initializer_list<double> durations) {
        text_ += dates_.text(day, platform::DateStyle::fixedDay);
        for (const double seconds : durations) {
            text_ += ',';
            addHours(seconds);
        }
        text_ += '\n';
    }

    [[nodiscard]] std::string take() { return std::move(text_); }

private:
    void addHours(double seconds) {
        std::array<char, 400> digits{}; // the largest double has 309 before its point
        const auto written = std::to_chars(digits.begin(), digits.end(), seconds / 3600,
                                           std::chars_format::fixed, 2);
        text_.append(digits.data(), written.ptr);
    }

    platform::DateText dates_;
    std::string text_;
};

struct ChangedDay {
    LedgerTotals totals;
    bool hasChanges = false;
};

// The table reaches a day beyond the interval, so that it covers all of it wherever it ends.
template <class Changes>
std::string ledgerText(std::span<Changes> adjustments, DateInterval interval,
                       const Calendar& calendar) {
    constexpr double day = 86'400;
    const platform::DayTable table(calendar, interval.start, interval.end + day);
    std::vector<ChangedDay> days(table.size());
    LedgerDayWalk::visit(adjustments, interval, table,
                         [&](std::size_t index, std::int64_t minutes) {
                             days[index].totals.add(minutes);
                             days[index].hasChanges = true;
                         });
    CsvLines lines("date,added_hours,removed_hours,net_change_hours", calendar);
    for (std::size_t i = 0; i < days.size(); ++i) {
        if (days[i].hasChanges) {
            const LedgerTotals& totals = days[i].totals;
            lines.add(table.start(i),
                      {totals.addedSeconds, totals.subtractedSeconds, totals.netSeconds()});
        }
    }
    return lines.take();
}

} // namespace

std::string csv(const TimeBankReport& report, const Calendar& calendar) {
    CsvLines lines("date,worked_hours,adjustment_hours,planned_hours,difference_hours", calendar);
    for (const DayBalance& day : report.days) {
        lines.add(day.date, {day.workedSeconds, day.adjustmentSeconds, day.expectedSeconds,
                             day.balanceSeconds()});
    }
    return lines.take();
}

std::string ledgerCSV(std::span<const LedgerRow> adjustments, DateInterval in,
                      const Calendar& calendar) {
    return ledgerText(adjustments, in, calendar);
}

std::string ledgerCSV(std::span<BalanceAdjustment* const> adjustments, DateInterval in,
                      const Calendar& calendar) {
    return ledgerText(adjustments, in, calendar);
}

} // namespace quillmere::TimeBankReporting
