#include "tests/Platform/calendar/OddZones.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <vector>

namespace platform {
namespace {

constexpr double infinity = std::numeric_limits<double>::infinity();

struct OddDay {
    const char* zone;
    CivilDate date;
    std::optional<double> start; ///< from date(1)
    double hours;                ///< until the next day that exists
};

// Starts as `TZ=zone date -d 'date time' +%s` gives them, of a repeated midnight the earlier one.
const OddDay oddDays[] = {
    {"America/Sao_Paulo", {2018, 11, 4}, 1541300400, 23}, // from 00:00 to 01:00
    {"Africa/Cairo", {2024, 4, 26}, 1714082400, 23},      // from 00:00 to 01:00
    {"Asia/Beirut", {2022, 3, 27}, 1648332000, 23},       // from 00:00 to 01:00
    {"America/Havana", {2023, 11, 5}, 1699156800, 25},    // from 01:00 to 00:00
    {"Atlantic/Azores", {2023, 10, 29}, 1698537600, 25},  // from 01:00 to 00:00
    {"Pacific/Apia", {2011, 12, 29}, 1325152800, 24},     // the day before the one that never was
    {"Pacific/Apia", {2011, 12, 30}, std::nullopt, 0},    // from the 30th 00:00 to the 31st
    {"Pacific/Apia", {2011, 12, 31}, 1325239200, 24},
    {"America/St_Johns", {2010, 11, 7}, 1289097000, 25}, // from 00:01 to 23:01 the day before
    {"Africa/Monrovia", {1972, 1, 7}, 63593070, 23.0 + 930.0 / 3600}, // 44 min 30 s forward
    {"America/Toronto", {1919, 3, 31}, -1601753400, 23.5},            // from 23:30 to 00:30
    {"Europe/Berlin", {2026, 3, 29}, 1774738800, 23},
    {"Europe/Berlin", {2026, 10, 25}, 1792879200, 25},
};

TEST(Calendar, knowsWhereOddDaysStartAndHowLongTheyAre) {
    for (const auto& row : oddDays) {
        SCOPED_TRACE(row.zone + (' ' + textOf(row.date)));
        const auto calendar = calendarIn(row.zone);
        const auto start = calendar.startOfDay(row.date);
        ASSERT_EQ(start.has_value(), row.start.has_value());
        if (!start)
            continue;
        EXPECT_EQ(start->secondsSince1970, *row.start);
        EXPECT_EQ(calendar.startOfDay(*start), *start);
        EXPECT_EQ(calendar.startOfDay(*start + 0.5), *start);
        const auto next = calendar.startOfDay(calendar.addingDays(*start, 1).value());
        EXPECT_DOUBLE_EQ((next - *start) / 3600, row.hours);
        EXPECT_EQ(calendar.startOfDay(next - 0.001), *start);
    }
}

std::vector<CivilDate> walkedDates(const Calendar& calendar, Instant from, int step, int count) {
    std::vector<CivilDate> dates;
    for (auto day = calendar.startOfDay(from); count-- > 0;
         day = calendar.startOfDay(calendar.addingDays(day, step).value()))
        dates.push_back(calendar.civilDate(day));
    return dates;
}

TEST(Calendar, walksDaysForwardsAndBackwardsOverOddOnes) {
    for (const auto& row : oddDays) {
        SCOPED_TRACE(row.zone + (' ' + textOf(row.date)));
        const auto calendar = calendarIn(row.zone);
        const CivilDate tenth{row.date.year, row.date.month, std::max(row.date.day - 5, 1)};
        std::vector<CivilDate> expected;
        for (int day = tenth.day; day <= daysInMonth(tenth.year, tenth.month); ++day)
            if (calendar.startOfDay(CivilDate{tenth.year, tenth.month, day}))
                expected.push_back({tenth.year, tenth.month, day});
        const auto count = static_cast<int>(expected.size());
        EXPECT_EQ(walkedDates(calendar, *calendar.startOfDay(tenth), 1, count), expected);
        std::reverse(expected.begin(), expected.end());
        EXPECT_EQ(walkedDates(calendar, *calendar.startOfDay(expected.front()), -1, count),
                  expected);
    }
}

struct Addition {
    const char* name;
    const char* zone;
    double from;
    int days;
    int months;
    std::optional<double> result;
};

const Addition additions[] = {
    {"keeps the fraction", "UTC", 86399.25, 1, 0, 172799.25},
    {"keeps the fraction before 1970", "UTC", -0.25, -1, 0, -86400.25},
    {"into a gap moves on by the gap", "Europe/Berlin", 1774661400, 1, 0,
     1774747800}, // 02:30, 03:30
    {"into a repeated hour takes the first", "Europe/Berlin", 1792801800, 1, 0,
     1792888200}, // 02:30
    {"by nothing stays in the second pass", "Europe/Berlin", 1792891800, 0, 0, 1792891800},
    {"over a skipped day forwards", "Pacific/Apia", 1325188800, 1, 0, 1325275200},
    {"over a skipped day backwards", "Pacific/Apia", 1325275200, -1, 0, 1325188800},
    {"to the last day of a shorter month", "UTC", 1769817600, 0, 1, 1772236800}, // Jan 31, Feb 28
    {"a month back over the year", "UTC", 1768435200, 0, -1, 1765756800},        // Jan 15, Dec 15
    {"beyond the last year", "UTC", 253402128000, 1, 0, std::nullopt},
    {"before the first year", "UTC", -377705030400, 0, -1, std::nullopt},
    {"by as much as an int holds", "UTC", 0, std::numeric_limits<int>::max(), 0, std::nullopt},
    {"months by as much as an int holds", "UTC", 0, 0, std::numeric_limits<int>::min(),
     std::nullopt},
    {"to an instant that is none", "UTC", infinity, 1, 0, std::nullopt},
};

TEST(Calendar, addsDaysAndMonths) {
    for (const auto& row : additions) {
        SCOPED_TRACE(row.name);
        const auto calendar = calendarIn(row.zone);
        const auto result = row.months == 0 ? calendar.addingDays({row.from}, row.days)
                                            : calendar.addingMonths({row.from}, row.months);
        ASSERT_EQ(result.has_value(), row.result.has_value());
        EXPECT_EQ(result.value_or(Instant{}).secondsSince1970, row.result.value_or(0));
    }
}

TEST(Calendar, movesATimeOfDayToAnotherDate) {
    const auto berlin = calendarIn("Europe/Berlin");
    const Instant noonInWinter{1767956400.5}; // 2026-01-09 12:00:00.5
    EXPECT_EQ(berlin.atDate({2026, 7, 9}, noonInWinter), (Instant{1783591200.5}));
    EXPECT_EQ(berlin.atDate({2026, 2, 29}, noonInWinter), std::nullopt);
    EXPECT_EQ(calendarIn("Pacific/Apia").atDate({2011, 12, 30}, noonInWinter), std::nullopt);
}

struct Period {
    const char* zone;
    const char* region;
    CivilDate within;
    CivilDate weekStart;
    double weekHours;
    double monthHours;
};

// A month of 30 days has 720 hours, one of 31 days 744.
const Period periods[] = {
    {"UTC", "de_DE", {2026, 11, 22}, {2026, 11, 16}, 168, 720},
    {"UTC", "en_US", {2026, 11, 22}, {2026, 11, 22}, 168, 720},
    {"UTC", "ar_EG", {2026, 11, 20}, {2026, 11, 14}, 168, 720},
    {"America/Sao_Paulo", "en_US", {2018, 11, 4}, {2018, 11, 4}, 167, 719},
    {"America/Havana", "en_US", {2023, 11, 5}, {2023, 11, 5}, 169, 721},
    {"Africa/Cairo", "en_US", {2024, 4, 27}, {2024, 4, 21}, 167, 719},
    {"Pacific/Apia", "en_US", {2011, 12, 29}, {2011, 12, 25}, 144, 720},
};

TEST(Calendar, givesTheWeekAndTheMonthAroundAnInstant) {
    for (const auto& row : periods) {
        SCOPED_TRACE(row.zone + (' ' + textOf(row.within)));
        const auto calendar = calendarIn(row.zone, row.region);
        const Instant instant = *calendar.startOfDay(row.within) + 1;
        const auto week = calendar.weekInterval(instant);
        EXPECT_TRUE(week.contains(instant));
        EXPECT_EQ(textOf(calendar.civilDate(week.start)), textOf(row.weekStart));
        EXPECT_EQ((week.end - week.start) / 3600, row.weekHours);
        EXPECT_EQ(calendar.weekInterval(week.end).start, week.end);
        const auto month = calendar.monthInterval(instant);
        EXPECT_EQ(calendar.civilDate(month.start),
                  (CivilDate{row.within.year, row.within.month, 1}));
        EXPECT_EQ((month.end - month.start) / 3600, row.monthHours);
        EXPECT_EQ(calendar.monthInterval(month.end).start, month.end);
    }
}

TEST(Calendar, beginsAWeekAfterItsSkippedFirstDay) {
    // 1994-12-31, a Saturday, never was on Kiritimati; Egypt's weeks begin on Saturday.
    const auto calendar = calendarIn("Pacific/Kiritimati", "ar_EG");
    const auto newYear = calendar.startOfDay(CivilDate{1995, 1, 1}).value();
    EXPECT_EQ(calendar.weekInterval(newYear + 1), (DateInterval{newYear, newYear + 6 * 86400.0}));
}

TEST(Calendar, takesEveryInstant) {
    for (const char* zone : {"UTC", "Pacific/Kiritimati", "America/New_York"}) {
        const auto calendar = calendarIn(zone);
        for (const double seconds :
             {-infinity, -1e300, -1e15, 1e15, 1e300, infinity, std::nan("")}) {
            SCOPED_TRACE(seconds);
            const auto start = calendar.startOfDay(Instant{seconds});
            EXPECT_EQ(calendar.startOfDay(start), start);
            EXPECT_TRUE(calendar.isSameDay(start, {seconds}));
            EXPECT_EQ(calendar.startOfDay(calendar.civilDate(start)), start);
            EXPECT_LT(start, calendar.weekInterval({seconds}).end);
            EXPECT_EQ(calendar.addingDays({seconds}, 1), std::nullopt);
        }
    }
    EXPECT_EQ(calendarIn("UTC").addingSeconds({1e308}, 1e308), std::nullopt);
}

} // namespace
} // namespace platform
