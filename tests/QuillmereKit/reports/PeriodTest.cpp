#include "QuillmereKit/reports/ReportGranularity.h"
#include "tests/QuillmereKit/KitTest.h"

#include <limits>

namespace quillmere::test {

namespace {

constexpr auto week = ReportGranularity::week;
constexpr auto month = ReportGranularity::month;

/// The date of a number such as 20261123.
CivilDate date(int number) {
    return {number / 10'000, number / 100 % 100, number % 100};
}

Calendar calendarOf(const char* zone, const char* region) {
    return {platform::TimeZone::named(zone).value(), platform::Region::fromLocale(region)};
}

TEST(Period, BeginsOnTheRegionsWeekdayAndSurvivesOddDays) {
    const struct {
        const char* name;
        const char* zone;
        const char* region;
        ReportGranularity granularity;
        int anchor;
        int first;
        int next;
        double hours;
    } rows[] = {
        {"from Monday", "Europe/Berlin", "de_DE", week, 20261115, 20261109, 20261116, 168},
        {"from Sunday", "America/New_York", "en_US", week, 20261115, 20261115, 20261122, 168},
        {"from Saturday", "Africa/Cairo", "ar_EG", week, 20240426, 20240420, 20240427, 167},
        {"from no midnight", "America/Sao_Paulo", "pt_BR", week, 20181107, 20181104, 20181111, 167},
        {"to no midnight", "America/Sao_Paulo", "pt_BR", week, 20181103, 20181028, 20181104, 168},
        {"two midnights", "America/Havana", "es_MX", week, 20231105, 20231105, 20231112, 169},
        {"without a Friday", "Pacific/Apia", "en_US", week, 20111231, 20111225, 20120101, 144},
        {"from its last day", "Europe/Berlin", "de_DE", month, 20260131, 20260101, 20260201, 744},
        {"an hour short", "Europe/Berlin", "de_DE", month, 20260329, 20260301, 20260401, 743},
        {"a day short", "Pacific/Apia", "en_US", month, 20111201, 20111201, 20120101, 720},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        const Calendar calendar = calendarOf(row.zone, row.region);
        const Instant anchor = calendar.startOfDay(date(row.anchor)).value();
        const platform::DateInterval interval = period(row.granularity, anchor + hour, calendar);
        EXPECT_EQ(calendar.civilDate(interval.start), date(row.first));
        EXPECT_EQ(interval.start, calendar.startOfDay(interval.start));
        EXPECT_EQ(calendar.civilDate(interval.end), date(row.next));
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
