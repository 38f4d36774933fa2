#include "Platform/calendar/Region.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <string>

namespace platform {
namespace {

struct RegionRow {
    const char* name;
    const char* language; ///< its start, where newer data of ICU knows an English of the region
    int firstWeekday;
    bool twelveHours;
    const char* calendarSystem;
};

const RegionRow regions[] = {
    {"de_DE.UTF-8", "en_DE", 2, false, "gregorian"},
    {"en_GB", "en_GB", 2, false, "gregorian"},
    {"en_US.UTF-8", "en_US", 1, true, "gregorian"},
    {"C", "en_US", 1, true, "gregorian"},
    {"C.UTF-8", "en_US", 1, true, "gregorian"},
    {"POSIX", "en_US", 1, true, "gregorian"},
    {"", "en_US", 1, true, "gregorian"},
    {"de", "en_US", 1, true, "gregorian"},
    {"fr_CA", "en_CA", 1, false, "gregorian"},
    {"en_CA", "en_CA", 1, true, "gregorian"},
    {"ar_EG.UTF-8", "en_001", 7, true, "gregorian"},
    {"th_TH", "en_001", 1, false, "buddhist"},
    {"fa_IR", "en_001", 7, false, "persian"},
    {"ja_JP.eucJP", "en_", 1, false, "gregorian"},
    {"sv_SE@euro", "en_SE", 2, false, "gregorian"},
    {"sr_RS@latin", "en_001", 2, false, "gregorian"},
    {"xx_ZZ", "en_001", 2, false, "gregorian"},
    {"d/_..", "en_US", 1, true, "gregorian"},
};

TEST(Region, takesItsConventionsFromTheLocaleName) {
    for (const auto& row : regions) {
        SCOPED_TRACE(row.name);
        const auto region = Region::fromLocale(row.name);
        EXPECT_TRUE(region.localeId().starts_with(row.language)) << region.localeId();
        EXPECT_TRUE(region.localeId().ends_with(std::string("@calendar=") + row.calendarSystem));
        EXPECT_EQ(region.firstWeekday(), row.firstWeekday);
        EXPECT_EQ(region.usesTwelveHourClock(), row.twelveHours);
        EXPECT_EQ(region.calendarSystem(), row.calendarSystem);
    }
}

TEST(Region, ofTheSystemIsTheFirstVariableThatSaysSomething) {
    const char* const settings[][4] = {
        {"de_DE", "en_GB", "en_US", "en_DE"},
        {"", "en_GB", "en_US", "en_GB"},
        {"", "", "sv_SE", "en_SE"},
        {"C", "en_GB", "sv_SE", "en_US"},
        {"", "", "", "en_US"},
    };
    for (const auto& [all, time, lang, expected] : settings) {
        setenv("LC_ALL", all, 1);
        setenv("LC_TIME", time, 1);
        setenv("LANG", lang, 1);
        EXPECT_TRUE(Region::system().localeId().starts_with(expected))
            << Region::system().localeId();
    }
    setenv("LC_ALL", "C.UTF-8", 1);
}

} // namespace
} // namespace platform
