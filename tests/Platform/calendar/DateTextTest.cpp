#include "Platform/calendar/DateText.h"

#include "tests/Platform/calendar/OddZones.h"

#include <gtest/gtest.h>

#include <string>

namespace platform {
namespace {

using Style = DateStyle;

struct Row {
    const char* region;
    DateStyle style;
    const char* text;
};

// 2026-11-22, 15:10 in New York.
const Row texts[] = {
    {"en_US", Style::weekdayDayTime, "Sun, Nov 22, 3:10 PM"},
    {"en_US", Style::weekdayDayYear, "Sun, Nov 22, 2026"},
    {"en_US", Style::weekdayDay, "Sun, Nov 22"},
    {"en_US", Style::sectionDay, "Sunday, Nov 22"},
    {"en_US", Style::fullDay, "Sunday, November 22, 2026"},
    {"en_US", Style::fullWeekdayDay, "Sunday, November 22"},
    {"en_US", Style::day, "Nov 22"},
    {"en_US", Style::dayYear, "Nov 22, 2026"},
    {"en_US", Style::monthYear, "November 2026"},
    {"en_US", Style::shortWeekday, "Sun"},
    {"en_US", Style::narrowWeekday, "S"},
    {"C", Style::weekdayDayTime, "Sun, Nov 22, 3:10 PM"},
    {"fr_CA", Style::weekdayDayTime, "Sun, Nov 22, 15:10"},
    {"th_TH", Style::monthYear, "November 2569 BE"},
    {"fa_IR", Style::monthYear, "Azar 1405 AP"},
    {"de_DE", Style::fixedDay, "2026-11-22"},
    {"ar_EG", Style::fixedMonth, "2026-11"},
    {"th_TH", Style::fixedDay, "2569-11-22"},
    {"fa_IR", Style::fixedMonth, "1405-09"},
};

TEST(DateText, writesEnglishByTheRegionsConventions) {
    for (const auto& row : texts) {
        SCOPED_TRACE(row.region);
        const DateText dates(calendarIn("America/New_York", row.region));
        EXPECT_EQ(dates.text(Instant{1795378200}, row.style), row.text);
    }
}

TEST(DateText, putsTheDayFirstInEurope) {
    // The comma after the weekday comes and goes with ICU's data.
    for (const char* region : {"de_DE", "en_GB", "sv_SE"}) {
        const DateText dates(calendarIn("Europe/Berlin", region));
        const auto row = dates.text(Instant{1795378200}, Style::weekdayDayTime);
        EXPECT_TRUE(row.starts_with("Sun")) << row;
        EXPECT_TRUE(row.ends_with(" 22 Nov, 21:10")) << row;
    }
}

TEST(DateText, asksTheSystemsZoneDataAlone) {
    // Rules of 2023: clocks in Cairo are three hours ahead of UTC in summer, in Almaty five.
    const Instant noon{1783598400}; // 2026-07-09 12:00 UTC
    const auto timeIn = [noon](const char* zone) {
        return DateText(calendarIn(zone)).text(noon, Style::weekdayDayTime);
    };
    EXPECT_EQ(timeIn("Africa/Cairo"), "Thu, Jul 9, 3:00 PM");
    EXPECT_EQ(timeIn("Asia/Almaty"), "Thu, Jul 9, 5:00 PM");
    EXPECT_EQ(timeIn("Asia/Kathmandu"), "Thu, Jul 9, 5:45 PM");
}

TEST(DateText, writesDatesThatHaveNoInstantAndDistantOnes) {
    const DateText dates(calendarIn("Pacific/Apia"));
    EXPECT_EQ(dates.text(CivilDate{2011, 12, 30}, Style::weekdayDayYear), "Fri, Dec 30, 2011");
    EXPECT_EQ(dates.text(CivilDate{1500, 3, 1}, Style::fullDay), "Thursday, March 1, 1500");
    EXPECT_EQ(dates.text(Instant{1e300}, Style::fullDay), "Thursday, December 30, 9999");
}

TEST(DateText, namesWeekdaysByNumber) {
    const DateText dates(calendarIn("UTC", "de_DE"));
    std::string names;
    for (int weekday = 1; weekday <= 7; ++weekday)
        names += dates.weekdayName(weekday, Style::shortWeekday) +
                 dates.weekdayName(weekday, Style::narrowWeekday);
    EXPECT_EQ(names, "SunSMonMTueTWedWThuTFriFSatS");
}

} // namespace
} // namespace platform
