#include "Platform/calendar/DayTable.h"

#include "tests/Platform/calendar/OddZones.h"

#include <gtest/gtest.h>

#include <limits>
#include <random>

namespace platform {
namespace {

class DayTableOf : public testing::TestWithParam<const char*> {};

void expectSameAnswers(const Calendar& calendar, Instant first, Instant last) {
    const DayTable table(calendar, first, last);
    ASSERT_EQ(table.start(0), calendar.startOfDay(first));
    for (std::size_t day = 0; day + 1 < table.size(); ++day) {
        const auto next = calendar.startOfDay(calendar.addingDays(table.start(day), 1).value());
        ASSERT_EQ(table.start(day + 1), next) << textOf(calendar.civilDate(next));
        ASSERT_EQ(table.indexOf(next - 0.001), day) << textOf(calendar.civilDate(next));
        ASSERT_EQ(table.indexOf(next), day + 1) << textOf(calendar.civilDate(next));
    }
    std::mt19937_64 random(1);
    std::uniform_real_distribution<double> anyTime(first.secondsSince1970, last.secondsSince1970);
    for (int i = 0; i < 3'000; ++i) {
        const Instant instant{anyTime(random)};
        ASSERT_EQ(table.start(table.indexOf(instant)), calendar.startOfDay(instant))
            << instant.secondsSince1970;
    }
}

TEST_P(DayTableOf, answersWhatTheCalendarAnswers) {
    const auto calendar = calendarIn(GetParam());
    expectSameAnswers(calendar, {-2e9}, start2100);
    expectSameAnswers(calendar, {7.2e9}, {7.3e9});  // 2198 to 2201, where the listed changes end
    expectSameAnswers(calendar, {2e10}, {2.01e10}); // 2603 to 2606
}

INSTANTIATE_TEST_SUITE_P(Zones, DayTableOf, testing::ValuesIn(oddZones));

TEST(DayTable, givesAnHourRepeatedAcrossMidnightToTheOldDate) {
    const auto calendar = calendarIn("America/St_Johns");
    const Instant start =
        *calendar.startOfDay(CivilDate{2010, 11, 7}); // one minute, then 23:01 again
    const DayTable table(calendar, start - 86400, start + 86400);
    ASSERT_EQ(table.size(), 2U);
    EXPECT_EQ(table.indexOf(start + 59.9), 1U);
    EXPECT_EQ(table.indexOf(start + 60), 0U);
    EXPECT_EQ(table.indexOf(start + 3599.9), 0U);
    EXPECT_EQ(table.indexOf(start + 3600), 1U);
    EXPECT_EQ(calendar.startOfDay(start + 60), table.start(0));
    EXPECT_EQ(DayTable(calendar, start, start).indexOf(start + 60), 0U);
}

struct Extent {
    double first;
    double last;
    std::size_t days;
};

TEST(DayTable, holdsTheDaysOfItsRange) {
    constexpr double unbounded = std::numeric_limits<double>::infinity();
    constexpr double nan = std::numeric_limits<double>::quiet_NaN();
    const Extent extents[] = {
        {0, 0, 1},
        {0, 86399.9, 1},
        {0, 86400, 2},
        {-0.1, 0, 2},
        {1, 0, 0},
        {nan, 0, 0},
        {0, nan, 0},
        {unbounded, unbounded, 1},
        {1e300, unbounded, 1},
        {253402041599, unbounded, 3},
        {253402041600, unbounded, 2},
    };
    for (const auto& row : extents) {
        SCOPED_TRACE(row.first);
        const DayTable table(calendarIn("UTC"), {row.first}, {row.last});
        EXPECT_EQ(table.size(), row.days);
        EXPECT_EQ(table.empty(), row.days == 0);
    }
}

} // namespace
} // namespace platform
