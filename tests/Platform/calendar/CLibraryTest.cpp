#include "tests/Platform/calendar/OddZones.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdlib>
#include <ctime>
#include <random>
#include <set>

namespace platform {
namespace {

/// The C library's local time, in a zone of its own for as long as this lives.
class CLibraryZone {
public:
    explicit CLibraryZone(const char* name) { change(name); }
    ~CLibraryZone() { change("UTC"); }
    CLibraryZone(const CLibraryZone&) = delete;
    CLibraryZone& operator=(const CLibraryZone&) = delete;

    static std::tm at(std::time_t time) {
        std::tm local{};
        localtime_r(&time, &local);
        return local;
    }

    static CivilDate date(std::time_t time) {
        const auto local = at(time);
        return {local.tm_year + 1900, local.tm_mon + 1, local.tm_mday};
    }

private:
    static void change(const char* name) {
        setenv("TZ", name, 1);
        tzset();
    }
};

/// The days on which the offset changes with the days around them, and some hundred at random.
std::set<std::time_t> interestingTimes() {
    std::set<std::time_t> times;
    const auto first = static_cast<std::time_t>(start1970.secondsSince1970);
    const auto last = static_cast<std::time_t>(start2100.secondsSince1970);
    auto offset = CLibraryZone::at(first).tm_gmtoff;
    for (auto noon = first + 43200; noon < last; noon += 86400) {
        const auto today = CLibraryZone::at(noon).tm_gmtoff;
        for (std::time_t quarters = -8; today != offset && quarters <= 6; ++quarters)
            times.insert(noon + quarters * 21600);
        offset = today;
    }
    std::mt19937_64 random(1);
    std::uniform_int_distribution<std::time_t> anyTime(first, last - 1);
    for (int i = 0; i < 300; ++i)
        times.insert(anyTime(random));
    return times;
}

class CLibrary : public testing::TestWithParam<const char*> {};

TEST_P(CLibrary, agreesOnTheDateAndTheFirstInstantOfEveryDay) {
    const auto calendar = calendarIn(GetParam());
    const CLibraryZone zone(GetParam());
    std::set<std::time_t> starts;
    for (const auto time : interestingTimes()) {
        const Instant instant{static_cast<double>(time) + 0.75};
        SCOPED_TRACE(time);
        const auto date = CLibraryZone::date(time);
        ASSERT_EQ(calendar.civilDate(instant), date);
        ASSERT_EQ(calendar.weekday(instant), CLibraryZone::at(time).tm_wday + 1);
        const auto start = static_cast<std::time_t>(calendar.startOfDay(instant).secondsSince1970);
        ASSERT_EQ(CLibraryZone::date(start), date);
        ASSERT_NE(CLibraryZone::date(start - 1), date);
        ASSERT_EQ(calendar.startOfDay(date), (Instant{static_cast<double>(start)}));
        if (!starts.insert(start).second)
            continue;
        for (int before = 60; before <= 7500; before += 60)
            ASSERT_NE(CLibraryZone::date(start - before), date) << before << " s before " << start;
    }
}

INSTANTIATE_TEST_SUITE_P(Zones, CLibrary, testing::ValuesIn(oddZones));

} // namespace
} // namespace platform
