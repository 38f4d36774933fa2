#include "QuillmereKit/reports/LedgerDay.h"
#include "QuillmereKit/reports/TimeBankReporting.h"
#include "tests/QuillmereKit/Ledger.h"

#include <limits>
#include <random>

namespace quillmere::test {

namespace {

using platform::DateInterval;

const DateInterval march{berlin(3, 1), berlin(4, 1)};
const std::string ledgerHeader = "date,added_hours,removed_hours,net_change_hours\n";

/// The same from records and from rows.
std::string ledgerCSV(const Ledger& ledger, DateInterval interval, const Calendar& calendar) {
    std::string text = TimeBankReporting::ledgerCSV(ledger.records(), interval, calendar);
    EXPECT_EQ(TimeBankReporting::ledgerCSV(ledger.rows(), interval, calendar), text);
    return text;
}

TEST(Report, KeepsTheDaysOfThePeriodInTheirOrder) {
    const std::vector<DayBalance> days{{berlin(3, 31), 3600, 60, 1800},
                                       {berlin(2, 28), 1, 1, 1},
                                       {berlin(4, 1), 1, 1, 1},
                                       {berlin(3, 1), 7200, -120, 0}};
    const TimeBankReport report = TimeBankReporting::report(
        days, berlin(3, 31, 12), ReportGranularity::month, berlinCalendar);
    EXPECT_EQ(report, (TimeBankReport{march, {days[0], days[3]}}));
    EXPECT_EQ(report.workedSeconds(), 10'800);
    EXPECT_EQ(report.adjustmentSeconds(), -60);
    EXPECT_EQ(report.expectedSeconds(), 1800);
    EXPECT_EQ(report.balanceSeconds(), 8940);
}

TEST(Report, SumsTheBalanceDayByDay) {
    const TimeBankReport report{march, {{berlin(3, 1), 1e17, 0, 1e17}, {berlin(3, 2), 1, 0, 0}}};
    EXPECT_EQ(report.balanceSeconds(), 1);
    EXPECT_EQ(report.workedSeconds() - report.expectedSeconds(), 0);
}

TEST(ReportCSV, ListsEveryDayGiven) {
    const TimeBankReport report{march,
                                {{berlin(3, 29), 27'000, -18, 28'800}, {berlin(3, 30), 0, 0, 0}}};
    EXPECT_EQ(TimeBankReporting::csv(report, berlinCalendar),
              "date,worked_hours,adjustment_hours,planned_hours,difference_hours\n"
              "2026-03-29,7.50,-0.01,8.00,-0.51\n"
              "2026-03-30,0.00,0.00,0.00,0.00\n");
    const TimeBankReport tiny{march, {{berlin(3, 1), 0, -1, 1e306}}};
    EXPECT_TRUE(TimeBankReporting::csv(tiny, berlinCalendar).find(",-0.00,2777") !=
                std::string::npos);
}

TEST(LedgerCSV, ListsTheDaysThatHaveChanges) {
    const Ledger ledger{{berlin(3, 31, 23.99), -20}, {berlin(3, 2, 9), 90},
                        {berlin(3, 2, 10), -30},     {berlin(3, 2, 11), 15},
                        {berlin(3, 1), 60'000},      {berlin(4, 1), 1},
                        {berlin(3, 1) - 0.001, 1},   {berlin(3, 5), 0},
                        {berlin(3, 6), 60},          {berlin(3, 6), -60}};
    EXPECT_EQ(ledgerCSV(ledger, march, berlinCalendar), ledgerHeader +
                                                            "2026-03-01,1000.00,0.00,1000.00\n"
                                                            "2026-03-02,1.75,0.50,1.25\n"
                                                            "2026-03-05,0.00,0.00,0.00\n"
                                                            "2026-03-06,1.00,1.00,0.00\n"
                                                            "2026-03-31,0.00,0.33,-0.33\n");
    EXPECT_EQ(ledgerCSV(Ledger({}), march, berlinCalendar), ledgerHeader);
    EXPECT_EQ(ledgerCSV(ledger, {march.end, march.start}, berlinCalendar), ledgerHeader);
    EXPECT_EQ(ledgerCSV(ledger, {berlin(3, 2, 10), berlin(3, 2, 10.5)}, berlinCalendar),
              ledgerHeader + "2026-03-02,0.00,0.50,-0.50\n");
}

TEST(LedgerCSV, WritesTheCalendarsOwnDates) {
    const struct {
        const char* zone;
        const char* region;
        const char* date;
    } rows[] = {
        {"Europe/Berlin", "de_DE", "2026-03-02"}, {"America/New_York", "en_US", "2026-03-01"},
        {"Asia/Bangkok", "th_TH", "2569-03-02"},  {"Asia/Tehran", "fa_IR", "1404-12-11"},
        {"Africa/Cairo", "ar_EG", "2026-03-02"},
    };
    const Ledger ledger{{berlin(3, 2, 1), 30}};
    for (const auto& row : rows) {
        SCOPED_TRACE(row.region);
        const Calendar calendar(platform::TimeZone::named(row.zone).value(),
                                platform::Region::fromLocale(row.region));
        EXPECT_EQ(ledgerCSV(ledger, march, calendar),
                  ledgerHeader + row.date + ",0.50,0.00,0.50\n");
    }
}

TEST(LedgerDays, SumToTheBalance) {
    std::mt19937_64 random(20261123);
    for (const char* zone : {"Europe/Berlin", "America/Sao_Paulo", "Africa/Cairo", "Pacific/Apia",
                             "America/St_Johns", "America/Havana"}) {
        const Calendar calendar = calendarIn(zone);
        Ledger ledger{};
        const Instant first = calendar.startOfDay(CivilDate{2000, 1, 1}).value();
        for (int i = 0; i < 500; ++i) {
            ledger.add(first + static_cast<double>(random() % 820'000'000),
                       static_cast<std::int64_t>(random() % 2881) - 1440);
        }
        double seconds = 0;
        LedgerTotals totals;
        DateInterval shown = period(ReportGranularity::month, first, calendar);
        for (; shown.start < first + 820'000'000;
             shown = period(ReportGranularity::month, shown.end, calendar)) {
            const TimeBankReport report{
                shown, TimeBankCalculator::ledgerDayBalances(ledger.rows(), shown, calendar)};
            const LedgerTotals ofMonth = TimeBankReporting::ledgerTotals(ledger.rows(), shown);
            ASSERT_EQ(report.balanceSeconds(), ofMonth.netSeconds()) << zone;
            seconds += report.balanceSeconds();
            totals.addedSeconds += ofMonth.addedSeconds;
            totals.subtractedSeconds += ofMonth.subtractedSeconds;
            ASSERT_EQ(ledger.balance(0, shown.end - 0.001), seconds) << zone;
        }
        EXPECT_EQ(totals.netSeconds(), seconds);
    }
}

TEST(LedgerDay, LeavesAnHourRepeatedAcrossMidnightToTheOldDate) {
    const Calendar calendar = calendarIn("America/St_Johns");
    const Instant start = calendar.startOfDay(CivilDate{2010, 11, 7}).value(); // 23:01 after 00:01
    const Ledger ledger{{start - 1, 1},    {start, 2},         {start + 60, 4},
                        {start + hour, 8}, {start + day, -16}, {start + 25 * hour, 32}};
    const auto totals = [&](Instant date) {
        return LedgerDay::of(ledger.rows(), date, calendar).totals;
    };
    EXPECT_EQ(totals(start), (LedgerTotals{10 * minute, 16 * minute}));
    EXPECT_EQ(totals(start - hour), (LedgerTotals{5 * minute, 0}));
}

TEST(ChartHourRange, IncludesZeroWithHeadroomWhereThereIsData) {
    const double infinite = std::numeric_limits<double>::infinity();
    const struct {
        const char* name;
        std::vector<double> hours;
        TimeBankReporting::HourRange expected;
    } rows[] = {
        {"above", {2.5, 4}, {0, 4 * 1.1}},
        {"below", {-0.5, -0.2}, {-1, 0}},
        {"far below", {-5, 0}, {-5 * 1.1, 0}},
        {"both", {-2, 3}, {-2 * 1.1, 3 * 1.1}},
        {"small on both sides", {-0.1, 0.1}, {-0.1 * 1.1, 0.1 * 1.1}},
        {"one small value", {0.5}, {0, 1}},
        {"nothing", {}, {0, 1}},
        {"nothing that counts", {infinite, -infinite, std::nan("")}, {0, 1}},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        TimeBankReport report{march, {}};
        for (const double hours : row.hours) {
            report.days.push_back({berlin(3, 1), 0, hours * hour, 0});
        }
        const TimeBankReporting::HourRange range = TimeBankReporting::chartHourRange(report);
        EXPECT_DOUBLE_EQ(range.lower, row.expected.lower);
        EXPECT_DOUBLE_EQ(range.upper, row.expected.upper);
    }
}

} // namespace

} // namespace quillmere::test
