#pragma once

#include "QuillmereKit/calculation/TimeBankCalculator.h"
#include "QuillmereKit/records/LedgerRow.h"
#include "tests/QuillmereKit/KitTest.h"

#include <algorithm>
#include <initializer_list>
#include <span>
#include <utility>

namespace quillmere::test {

/// Changes as records in the order given, and as rows in theirs.
class Ledger {
public:
    Ledger(std::initializer_list<std::pair<Instant, std::int64_t>> changes) {
        for (const auto& [date, minutes] : changes) {
            add(date, minutes);
        }
    }

    void add(Instant date, std::int64_t minutes) {
        owned_.push_back(std::make_unique<BalanceAdjustment>(
            uuid(static_cast<std::uint8_t>(owned_.size() + 1)), date, minutes, "",
            BalanceAdjustmentKind::manual, date, date));
        records_.push_back(owned_.back().get());
        rows_.push_back(
            LedgerRow::make(platform::store::RowRef{1}, records_.back()->values()).value());
        std::ranges::sort(rows_, [](const LedgerRow& a, const LedgerRow& b) { return a < b; });
    }

    [[nodiscard]] std::span<const LedgerRow> rows() const { return rows_; }
    [[nodiscard]] std::span<BalanceAdjustment* const> records() const { return records_; }

    /// The same from records and from rows.
    [[nodiscard]] double balance(std::int64_t startingBalanceMinutes, Instant through) const {
        const double seconds =
            TimeBankCalculator::ledgerBalanceSeconds(records_, startingBalanceMinutes, through);
        EXPECT_EQ(TimeBankCalculator::ledgerBalanceSeconds(rows_, startingBalanceMinutes, through),
                  seconds);
        return seconds;
    }

    [[nodiscard]] std::vector<double> days(platform::DateInterval interval,
                                           const Calendar& calendar) const {
        const auto days = TimeBankCalculator::ledgerDayBalances(records_, interval, calendar);
        EXPECT_EQ(TimeBankCalculator::ledgerDayBalances(rows_, interval, calendar), days);
        std::vector<double> minutes;
        for (const DayBalance& dayBalance : days) {
            EXPECT_EQ(dayBalance.date, calendar.startOfDay(dayBalance.date));
            EXPECT_EQ(dayBalance.balanceSeconds(), dayBalance.adjustmentSeconds);
            minutes.push_back(dayBalance.adjustmentSeconds / minute);
        }
        return minutes;
    }

private:
    std::vector<std::unique_ptr<BalanceAdjustment>> owned_;
    std::vector<BalanceAdjustment*> records_;
    std::vector<LedgerRow> rows_;
};

} // namespace quillmere::test
