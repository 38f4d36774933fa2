#include "QuillmereKit/rules/DurationFormatting.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace quillmere::DurationFormatting {

namespace {

constexpr double infinity = std::numeric_limits<double>::infinity();

TEST(DurationFormatting, ShowsWholeMinutesWithTheSignOfTheUnroundedValue) {
    const struct {
        const char* name;
        double seconds;
        const char* plain;
        const char* withSign;
        const char* spoken;
    } rows[] = {
        {"zero", 0, "0:00", "+0:00", "plus 0 hours, 0 minutes"},
        {"just under half a minute", 29.9, "0:00", "+0:00", "plus 0 hours, 0 minutes"},
        {"half a minute", 30, "0:01", "+0:01", "plus 0 hours, 1 minutes"},
        {"under a minute and a half", 89, "0:01", "+0:01", "plus 0 hours, 1 minutes"},
        {"halves go away from zero", -90, "0:02", "−0:02", "minus 0 hours, 2 minutes"},
        {"negative, rounds to none", -20, "0:00", "−0:00", "minus 0 hours, 0 minutes"},
        {"one hour, plural word", 3600, "1:00", "+1:00", "plus 1 hours, 0 minutes"},
        {"hours and minutes", -3660, "1:01", "−1:01", "minus 1 hours, 1 minutes"},
        {"minutes carry into hours", 359999, "100:00", "+100:00", "plus 100 hours, 0 minutes"},
        {"the most", 0x1p62 * 60, "76861433640456465:04", "+76861433640456465:04",
         "plus 76861433640456465 hours, 4 minutes"},
        {"beyond the most", -0x1.1p62 * 60, "—", "−—", "duration unavailable"},
        {"infinite", infinity, "—", "+—", "duration unavailable"},
        {"minus infinite", -infinity, "—", "−—", "duration unavailable"},
        {"not a number", std::nan(""), "—", "+—", "duration unavailable"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        EXPECT_EQ(clock(row.seconds, false), row.plain);
        EXPECT_EQ(clock(row.seconds, true), row.withSign);
        EXPECT_EQ(accessible(row.seconds), row.spoken);
    }
}

} // namespace

} // namespace quillmere::DurationFormatting
