#include "tests/QuillmereKit/Ledger.h"

#include "QuillmereKit/calculation/BalanceTrend.h"
#include "QuillmereKit/calculation/LedgerActivity.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <random>

namespace quillmere::test {

namespace {

using ::testing::Each;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

constexpr auto leastMinutes = std::numeric_limits<std::int64_t>::min();

const Instant noon = berlin(3, 4, 12);

TEST(LedgerBalance, CountsWhatIsDatedUpToTheMoment) {
    const Ledger ledger{{berlin(3, 3, 9), 30}, {berlin(3, 4, 18), 60}, {berlin(3, 4, 9), -45}};
    EXPECT_EQ(ledger.balance(120, noon), 6300);
    EXPECT_EQ(ledger.balance(120, berlin(3, 4, 9)), 6300);
    EXPECT_EQ(ledger.balance(120, berlin(3, 4, 9) - 0.001), 9000);
    EXPECT_EQ(ledger.balance(-5, berlin(3, 5)), 40 * 60);
    EXPECT_EQ(Ledger({}).balance(7, noon), 420);
}

TEST(LedgerBalance, TakesAnyStoredAmount) {
    const Ledger ledger{
        {berlin(3, 1), leastMinutes}, {berlin(3, 2), leastMinutes}, {berlin(3, 3), 1}};
    const double each = 0x1p63 * 60;
    EXPECT_EQ(TimeBankCalculator::ledgerBalanceSeconds(ledger.rows(), leastMinutes, noon),
              -3 * each);
    EXPECT_EQ(TimeBankCalculator::ledgerBalanceSeconds(ledger.records(), leastMinutes, noon),
              -3 * each);
    // 2^53 + 1 seconds do not fit a double: adding one minute at a time must round like the list.
    Ledger rounding{{berlin(3, 1), (std::int64_t{1} << 53) / 60}};
    for (int i = 0; i < 9; ++i) {
        rounding.add(berlin(3, 2), 1);
    }
    double expected = 0;
    for (const LedgerRow& row : rounding.rows()) {
        expected += static_cast<double>(row.minutes) * 60.0;
    }
    EXPECT_EQ(TimeBankCalculator::ledgerBalanceSeconds(rounding.rows(), 0, noon), expected);
}

TEST(LedgerDays, ListsEveryDayOfAHalfOpenInterval) {
    const Ledger ledger{{berlin(3, 2), 1},          {berlin(3, 4, 9), 30},
                        {berlin(3, 4, 23.99), -45}, {berlin(3, 8, 23.9999), 4},
                        {berlin(3, 9), 100},        {berlin(3, 1, 23.9), 100}};
    const Instant monday = berlin(3, 2);
    EXPECT_THAT(ledger.days({monday, berlin(3, 9)}, berlinCalendar),
                ElementsAre(1, 0, -15, 0, 0, 0, 4));
    EXPECT_THAT(ledger.days({berlin(3, 4, 10), berlin(3, 4, 11)}, berlinCalendar), ElementsAre(0));
    EXPECT_THAT(ledger.days({monday, berlin(3, 9) + 0.5}, berlinCalendar).size(), 7u);
    EXPECT_THAT(ledger.days({monday, monday}, berlinCalendar), IsEmpty());
    EXPECT_THAT(ledger.days({berlin(3, 4, 10), berlin(3, 4, 9)}, berlinCalendar), ElementsAre(0));
    EXPECT_THAT(ledger.days({monday, berlin(2, 20)}, berlinCalendar), IsEmpty());
    EXPECT_THAT(ledger.days({monday, {std::numeric_limits<double>::infinity()}}, berlinCalendar),
                IsEmpty());
}

TEST(LedgerDays, FollowTheZonesOddDays) {
    const struct {
        const char* name;
        const char* zone;
        CivilDate first;
        CivilDate end;
        double hoursOfTheSecondDay;
    } rows[] = {
        {"a day of 23 hours", "Europe/Berlin", {2026, 3, 28}, {2026, 3, 31}, 23},
        {"a day of 25 hours", "Europe/Berlin", {2026, 10, 24}, {2026, 10, 27}, 25},
        {"no midnight", "America/Sao_Paulo", {2018, 11, 3}, {2018, 11, 6}, 23},
        {"no midnight in Cairo", "Africa/Cairo", {2024, 4, 25}, {2024, 4, 28}, 23},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        const Calendar calendar = calendarIn(row.zone);
        const Instant start = calendar.startOfDay(row.first).value();
        const Instant end = calendar.startOfDay(row.end).value();
        Ledger ledger{};
        for (Instant moment = start; moment < end; moment = moment + hour) {
            ledger.add(moment, 1);
        }
        EXPECT_THAT(ledger.days({start, end}, calendar),
                    ElementsAre(24, row.hoursOfTheSecondDay, 24));
    }
}

TEST(BalanceTrend, IsTheBalanceAtTheEndOfEachDayAndNow) {
    const Ledger ledger{{berlin(2, 1), 600},         {berlin(2, 27, 23.99), 1},
                        {berlin(2, 28), 2},          {berlin(3, 3, 12), 10},
                        {berlin(3, 4, 11), 100},     {berlin(3, 4, 13), 1000},
                        {berlin(3, 3) - 0.5, 10'000}};
    std::vector<double> minutes =
        BalanceTrend::series(ledger.rows(), 5, BalanceTrendRange::week, noon, berlinCalendar);
    std::ranges::for_each(minutes, [](double& value) { value /= 60; });
    // A change in the last second of 2 March counts from the next day on.
    EXPECT_THAT(minutes, ElementsAre(605, 606, 608, 608, 608, 10618, 10718));
    EXPECT_THAT(BalanceTrend::series({}, 0, BalanceTrendRange::quarter, noon, berlinCalendar),
                ::testing::AllOf(::testing::SizeIs(90), Each(0)));
}

TEST(BalanceTrend, AgreesWithOneBalanceADayAlsoWhereSumsRound) {
    std::mt19937_64 random(20260304);
    for (const std::int64_t limit : {std::int64_t{1440}, std::int64_t{1} << 50}) {
        Ledger ledger{};
        for (int i = 0; i < 200; ++i) {
            const double back = static_cast<double>(random() % 100'000) / 1000;
            ledger.add(noon + 2 * day - back * day,
                       static_cast<std::int64_t>(random() % (2 * limit)) - limit);
        }
        std::vector<Instant> moments;
        for (int i = 30; i >= 0; --i) {
            moments.push_back(noon - i * day);
        }
        const auto balances = TimeBankCalculator::ledgerBalancesSeconds(ledger.rows(), 17, moments);
        for (std::size_t i = 0; i < moments.size(); ++i) {
            double expected = 0;
            for (const LedgerRow& row : ledger.rows()) {
                expected += row.date <= moments[i] ? static_cast<double>(row.minutes) * 60.0 : 0;
            }
            EXPECT_EQ(balances[i], 17 * 60.0 + expected);
        }
    }
}

TEST(BalanceTrend, DrawsWholeHoursAroundZero) {
    const struct {
        const char* name;
        std::vector<double> values;
        BalanceTrend::ValueDomain expected;
    } rows[] = {
        {"nothing", {}, {-3600, 3600}},
        {"flat zero", {0, 0}, {-3600, 3600}},
        {"within an hour", {0, 2400}, {-3600, 3600}},
        {"twelve per cent", {-36'000, 0}, {-43'200, 7200}},
        {"positive only", {36'000, 36'000}, {-7200, 43'200}},
        {"exactly an hour of margin left", {2700, 0}, {-3600, 3600}},
        {"just above", {2701, 0}, {-3600, 7200}},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        EXPECT_EQ(BalanceTrend::valueDomain(row.values), row.expected);
    }
}

TEST(BalanceTrendRange, ReadsStoredDayCounts) {
    EXPECT_EQ(BalanceTrendRanges::fromDayCount(90), BalanceTrendRange::quarter);
    for (const double days : {45.0, 0.0, -7.0, 7.5, std::nan("")}) {
        EXPECT_EQ(BalanceTrendRanges::fromDayCount(days), BalanceTrendRange::month) << days;
    }
    EXPECT_EQ(title(BalanceTrendRange::twoWeeks), "14 days");
}

TEST(LedgerActivity, SumsTodayIncludingWhatIsStillToCome) {
    const Ledger ledger{{berlin(3, 4), 1},    {berlin(3, 4) - 0.001, 10}, {berlin(3, 4, 23.9), 100},
                        {berlin(3, 5), 1000}, {berlin(3, 5, 20), 1000},   {berlin(3, 4, 9), -30}};
    EXPECT_EQ(LedgerActivity::secondsToday(ledger.rows(), noon, berlinCalendar), 71 * 60);
    EXPECT_EQ(LedgerActivity::secondsToday({}, noon, berlinCalendar), 0);
}

TEST(LedgerActivity, ListsTheNewestThreeWithTheChangeJustMade) {
    const Ledger ledger{{noon - 3, 1}, {noon - 2, 1}, {noon, 0}, {noon - 2, 1}, {noon - 4, 1}};
    const auto ids = [&](std::optional<LedgerRow> last) {
        std::string text;
        for (const LedgerRow& item : LedgerActivity::recentItems(ledger.rows(), last)) {
            text += std::to_string(item.id.bytes().back());
        }
        return text;
    };
    const auto last = [](Instant date, std::uint8_t id) {
        BalanceAdjustmentValues values;
        values.id = uuid(id);
        values.date = date;
        values.minutes = 5;
        return LedgerRow::make(platform::store::RowRef{9}, values);
    };
    EXPECT_EQ(ids(std::nullopt), "421");
    EXPECT_EQ(ids(last(noon, 9)), "942");
    EXPECT_EQ(ids(last(noon - 2, 3)), "432");
    EXPECT_EQ(ids(last(noon - 9, 9)), "421");
    EXPECT_EQ(ids(last(noon - 3, 1)), "421");
}

} // namespace

} // namespace quillmere::test
