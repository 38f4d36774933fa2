#include "Platform/calendar/MonthGrid.h"

#include "Platform/calendar/RegionMonths.h"
#include "tests/Platform/calendar/OddZones.h"

#include <gtest/gtest.h>

namespace platform {
namespace {

struct Month {
    const char* region;
    CivilDate within;
    int leadingBlanks;
    std::size_t days;
    int weeks;
};

TEST(MonthGrid, laysOutAMonthFromTheFirstWeekday) {
    const Month months[] = {
        {"de_DE", {2026, 11, 22}, 6, 30, 6}, {"en_US", {2026, 11, 22}, 0, 30, 5},
        {"ar_EG", {2026, 11, 1}, 1, 30, 5},  {"en_US", {2026, 2, 28}, 0, 28, 4},
        {"de_DE", {2024, 2, 29}, 3, 29, 5},  {"de_DE", {1900, 2, 1}, 3, 28, 5},
    };
    for (const auto& row : months) {
        SCOPED_TRACE(row.region + (' ' + textOf(row.within)));
        const auto calendar = calendarIn("Europe/Berlin", row.region);
        const MonthGrid grid(calendar, row.within);
        EXPECT_EQ(grid.first(), (CivilDate{row.within.year, row.within.month, 1}));
        EXPECT_EQ(grid.leadingBlanks(), row.leadingBlanks);
        ASSERT_EQ(grid.days().size(), row.days);
        EXPECT_EQ(grid.weekCount(), row.weeks);
        for (const auto& day : grid.days())
            EXPECT_EQ(calendar.civilDate(day.start.value()), day.date);
        const auto column = static_cast<std::size_t>(row.leadingBlanks);
        EXPECT_EQ(weekdayColumns(calendar).at(column),
                  calendar.weekday(*grid.days().front().start));
    }
}

TEST(MonthGrid, keepsASkippedDateInItsPlaceWithoutAStart) {
    const MonthGrid grid(calendarIn("Pacific/Apia"), {2011, 12, 1});
    ASSERT_EQ(grid.days().size(), 31U);
    for (const auto& day : grid.days())
        EXPECT_EQ(day.start.has_value(), day.date.day != 30) << day.date.day;
}

// The 30th of Aban 1405 was November 21, 2026.
TEST(MonthGrid, followsTheMonthsOfTheRegion) {
    const auto calendar = calendarIn("Asia/Tehran", "fa_IR");
    const MonthGrid aban(calendar, {2026, 11, 21});
    EXPECT_EQ(aban.first(), (CivilDate{2026, 10, 23}));
    EXPECT_EQ(aban.days().size(), 30U);
    EXPECT_EQ(dayOfMonth(calendar.region(), {2026, 11, 21}), 30);
    EXPECT_EQ(addingMonths(calendar.region(), {2026, 9, 22}, 1), (CivilDate{2026, 10, 22}))
        << "31 Shahrivar, 30 Mehr";
    const auto azar = calendar.monthInterval(*calendar.startOfDay(CivilDate{2026, 11, 22}));
    EXPECT_EQ(calendar.civilDate(azar.start), (CivilDate{2026, 11, 22}));
    EXPECT_EQ(calendar.civilDate(azar.end), (CivilDate{2026, 12, 22}));
    for (const Instant edge : {Calendar::earliest, Calendar::latest})
        EXPECT_TRUE(calendar.monthInterval(edge).contains(edge));
}

TEST(CivilDate, knowsWhichDatesExist) {
    EXPECT_TRUE(isValid({2000, 2, 29}));
    for (const CivilDate wrong :
         {CivilDate{1900, 2, 29}, CivilDate{2026, 13, 1}, CivilDate{2026, 0, 1},
          CivilDate{2026, 4, 31}, CivilDate{2026, 1, 0}, CivilDate{10000, 1, 1}})
        EXPECT_FALSE(isValid(wrong)) << textOf(wrong);
}

} // namespace
} // namespace platform
