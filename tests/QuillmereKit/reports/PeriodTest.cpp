#include "QuillmereKit/reports/ReportGranularity.h"
#include "tests/QuillmereKit/KitTest.h"

#include <limits>

namespace quillmere::test {

namespace {

constexpr auto week = ReportGranularity::week;
constexpr auto month = ReportGranularity::month;

Calendar calendarOf(const char* zone, const char* region) {
    return {platform::TimeZone::named(zone).value(), platform::Region::fromLocale(region)};
}

TEST(Period, BeginsOnTheRegionsWeekdayAndSurvivesOddDays) {
    const struct {
        const char* name;
        const char* zone;
        const char* region;
        ReportGranularity granularity;
        CivilDate anchor;
        CivilDate first;
        CivilDate next;
        double hours;
    } rows[] = {
        {"from Monday",
         "Europe/Berlin",
         "de_DE",
         week,
         {2026, 11, 11},
         {2026, 11, 9},
         {2026, 11, 16},
         168},
        {"from Sunday",
         "America/New_York",
         "en_US",
         week,
         {2026, 11, 11},
         {2026, 11, 8},
         {2026, 11, 15},
         168},
        {"from Saturday",
         "Africa/Cairo",
         "ar_EG",
         week,
         {2024, 4, 26},
         {2024, 4, 20},
         {2024, 4, 27},
         167},
        {"on its first day",
         "Europe/Berlin",
         "de_DE",
         week,
         {2026, 11, 9},
         {2026, 11, 9},
         {2026, 11, 16},
         168},
        {"short by an hour",
         "Europe/Berlin",
         "de_DE",
         week,
         {2026, 3, 29},
         {2026, 3, 23},
         {2026, 3, 30},
         167},
        {"begins without midnight",
         "America/Sao_Paulo",
         "pt_BR",
         week,
         {2018, 11, 7},
         {2018, 11, 4},
         {2018, 11, 11},
         167},
        {"ends where midnight is missing",
         "America/Sao_Paulo",
         "pt_BR",
         week,
         {2018, 11, 3},
         {2018, 10, 28},
         {2018, 11, 4},
         168},
        {"two midnights",
         "America/Havana",
         "es_MX",
         week,
         {2023, 11, 5},
         {2023, 11, 5},
         {2023, 11, 12},
         169},
        {"without a Friday",
         "Pacific/Apia",
         "en_US",
         week,
         {2011, 12, 31},
         {2011, 12, 25},
         {2012, 1, 1},
         144},
        {"January from its last day",
         "Europe/Berlin",
         "de_DE",
         month,
         {2026, 1, 31},
         {2026, 1, 1},
         {2026, 2, 1},
         744},
        {"a month short by an hour",
         "Europe/Berlin",
         "de_DE",
         month,
         {2026, 3, 29},
         {2026, 3, 1},
         {2026, 4, 1},
         743},
        {"a month without a day",
         "Pacific/Apia",
         "en_US",
         month,
         {2011, 12, 1},
         {2011, 12, 1},
         {2012, 1, 1},
         720},
        {"a leap year's February",
         "Africa/Cairo",
         "ar_EG",
         month,
         {2024, 2, 29},
         {2024, 2, 1},
         {2024, 3, 1},
         696},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        const Calendar calendar = calendarOf(row.zone, row.region);
        const Instant anchor = calendar.startOfDay(row.anchor).value();
        const platform::DateInterval interval = period(row.granularity, anchor + hour, calendar);
        EXPECT_EQ(calendar.civilDate(interval.start), row.first);
        EXPECT_EQ(interval.start, calendar.startOfDay(interval.start));
        EXPECT_EQ(calendar.civilDate(interval.end), row.next);
        EXPECT_EQ(interval.end - interval.start, row.hours * hour);
    }
}

TEST(Period, PagesOverEveryInstantOnce) {
    for (const char* zone : {"America/Sao_Paulo", "Africa/Cairo", "America/Havana", "Pacific/Apia",
                             "America/St_Johns", "Atlantic/Azores"}) {
        const Calendar calendar = calendarOf(zone, "en_GB");
        for (const ReportGranularity granularity : ReportGranularities::all) {
            SCOPED_TRACE(std::string(zone) + ' ' + std::string(rawValue(granularity)));
            Instant anchor = calendar.startOfDay(CivilDate{2005, 1, 31}).value() + 9 * hour;
            platform::DateInterval shown = period(granularity, anchor, calendar);
            const double limit = shown.start.secondsSince1970 + 15 * 366 * day;
            while (shown.end.secondsSince1970 < limit) {
                const platform::DateInterval next = period(granularity, shown.end, calendar);
                ASSERT_EQ(next.start, shown.end);
                const auto moved = addingPeriods(granularity, anchor, 1, calendar);
                ASSERT_TRUE(moved && next.contains(*moved));
                const auto back = addingPeriods(granularity, *moved, -1, calendar);
                ASSERT_TRUE(back && shown.contains(*back));
                anchor = *moved;
                shown = next;
            }
        }
    }
}

TEST(Period, IsEmptyWhereTheCalendarHasNone) {
    for (const double seconds : {1e300, -std::numeric_limits<double>::infinity()}) {
        const Instant anchor{seconds};
        EXPECT_EQ(period(month, anchor, berlinCalendar), (platform::DateInterval{anchor, anchor}));
        EXPECT_EQ(addingPeriods(week, anchor, -1, berlinCalendar), std::nullopt);
    }
    EXPECT_EQ(ReportGranularities::fromRawValue("week"), week);
    EXPECT_EQ(ReportGranularities::fromRawValue("month"), month);
    EXPECT_EQ(ReportGranularities::fromRawValue("Month"), std::nullopt);
}

} // namespace

} // namespace quillmere::test
