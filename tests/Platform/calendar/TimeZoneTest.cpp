#include "Platform/calendar/TimeZone.h"

#include "tests/Platform/calendar/OddZones.h"
#include "tests/Platform/files/TestFolder.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <ctime>
#include <filesystem>
#include <fstream>

namespace platform {
namespace {

namespace fs = std::filesystem;

constexpr Instant summer{1783598400}; // 2026-07-09 12:00 UTC

class SystemTimeZone : public testing::Test {
public:
    ~SystemTimeZone() override { choose("UTC"); }

    static void choose(const std::string& setting) { setenv("TZ", setting.c_str(), 1); }

    /// Hours from UTC that the system's zone shows in summer.
    static double hours() {
        const Calendar calendar(TimeZone::system(), {});
        return (static_cast<double>(calendar.civilSeconds(summer)) - summer.secondsSince1970) /
               3600;
    }

    const TestFolder folder_;
};

struct Setting {
    const char* value;
    const char* name;
    double hours;
};

TEST_F(SystemTimeZone, understandsEveryFormOfTheSetting) {
    const Setting settings[] = {
        {"Europe/Berlin", "Europe/Berlin", 2},
        {":Europe/Berlin", "Europe/Berlin", 2},
        {"/usr/share/zoneinfo/Asia/Tokyo", "Asia/Tokyo", 9},
        {":/usr/share/zoneinfo/Asia/Tokyo", "Asia/Tokyo", 9},
        {"UTC", "UTC", 0},
        {"", "UTC", 0},
        {":", "UTC", 0},
        {"CET-1CEST", "CET-1CEST", 2},
        {"<+0330>-3:30", "<+0330>-3:30", 3.5},
        {"XYZ4:30:36", "XYZ4:30:36", -4.51},
        {"Nowhere/Nothing", "UTC", 0},
        {"../../../etc/passwd", "UTC", 0},
        {"/etc/passwd", "UTC", 0},
        {"/dev/zero", "UTC", 0},
        {"/usr/share/zoneinfo", "UTC", 0},
        {"tzdata.zi", "UTC", 0},
        {"CET-", "UTC", 0},
        {"CET-99", "UTC", 0},
        {"CET-1CEST,J60", "UTC", 0},
        {"<", "UTC", 0},
        {"-", "UTC", 0},
    };
    for (const auto& row : settings) {
        SCOPED_TRACE(row.value);
        choose(row.value);
        EXPECT_EQ(TimeZone::system().name(), row.name);
        EXPECT_DOUBLE_EQ(hours(), row.hours);
    }
}

TEST_F(SystemTimeZone, keepsTheSummerTimeOfARuleAsTheCLibraryDoes) {
    for (const char* rule :
         {"CET-1CEST,M3.5.0,M10.5.0/3", "EST5EDT,M3.2.0,M11.1.0", "EST5EDT",
          "<-04>4<-03>,M9.1.6/24,M4.1.6/24", "<+1030>-10:30<+11>-11,M10.1.0,M4.1.0",
          "IST-1GMT0,M10.5.0,M3.5.0/1", "NST3:30NDT,J100/0:01,299/0:01"}) {
        SCOPED_TRACE(rule);
        choose(rule);
        tzset();
        const Calendar calendar(TimeZone::system(), {});
        // From 2007 to 2100: since then the United States have the rules that go without saying.
        for (std::time_t time = 1167609600; time < 4102444800; time += 144'000) {
            std::tm local{};
            localtime_r(&time, &local);
            ASSERT_EQ(calendar.civilSeconds({static_cast<double>(time)}) - time, local.tm_gmtoff)
                << time;
        }
    }
}

TEST_F(SystemTimeZone, seesAChangedLinkAndAChangedFile) {
    const auto path = folder_.path() / "localtime";
    choose(path);
    fs::create_symlink("/usr/share/zoneinfo/Europe/Berlin", path);
    const auto berlin = TimeZone::system();
    EXPECT_EQ(berlin, TimeZone::named("Europe/Berlin"));
    fs::remove(path);
    fs::create_symlink("../nowhere/zoneinfo/Asia/Tokyo", path);
    EXPECT_EQ(TimeZone::system().name(), "UTC") << "the link leads nowhere";
    fs::remove(path);
    fs::copy_file("/usr/share/zoneinfo/Asia/Tokyo", path);
    const auto copied = TimeZone::system();
    EXPECT_EQ(copied.name(), path);
    EXPECT_EQ(hours(), 9);
    fs::copy_file("/usr/share/zoneinfo/Asia/Kolkata", path, fs::copy_options::overwrite_existing);
    EXPECT_EQ(hours(), 5.5);
    EXPECT_NE(TimeZone::system(), copied);
    std::ofstream(path) << "TZif, but not for long";
    EXPECT_EQ(TimeZone::system(), TimeZone::utc());
}

TEST_F(SystemTimeZone, surrendersToNoCutOffZoneFile) {
    const fs::path source = "/usr/share/zoneinfo/America/Sao_Paulo";
    const auto path = folder_.path() / "cut";
    for (std::uintmax_t size = 0; size < fs::file_size(source); size += 7) {
        fs::copy_file(source, path, fs::copy_options::overwrite_existing);
        fs::resize_file(path, size);
        if (const auto zone = TimeZone::fromFile(path)) {
            const Calendar calendar(*zone, {});
            EXPECT_LE(calendar.startOfDay(summer), summer) << size;
        }
    }
}

} // namespace
} // namespace platform
