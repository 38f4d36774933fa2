#include "QuillmereKit/rules/QuickActionConfiguration.h"

#include <gtest/gtest.h>

#include <limits>
#include <vector>

namespace quillmere::QuickActionConfiguration {

namespace {

constexpr auto least = std::numeric_limits<std::int64_t>::min();
constexpr auto most = std::numeric_limits<std::int64_t>::max();

TEST(QuickActionConfiguration, NormalizesToFourSupportedAmounts) {
    const struct {
        const char* name;
        std::vector<std::int64_t> given;
        Presets expected;
    } rows[] = {
        {"nothing", {}, {15, 30, 60, 120}},
        {"the missing are the defaults", {45}, {45, 30, 60, 120}},
        {"clamped, snapped, the fifth ignored", {1, 1000, 25, 100, 7}, {5, 480, 20, 90}},
        {"the smaller on a tie", {75, 105, 300, 25}, {60, 90, 240, 20}},
        {"order and repetition kept", {60, 5, 60, 5}, {60, 5, 60, 5}},
        {"extremes", {least, most, 0, -5}, {5, 480, 5, 5}},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        EXPECT_EQ(normalized(row.given), row.expected);
    }
}

TEST(QuickActionConfiguration, NamesAmounts) {
    const struct {
        std::int64_t minutes;
        const char* expected;
    } rows[] = {
        {0, "0 min"},           {5, "5 min"},
        {59, "59 min"},         {60, "1 hr"},
        {61, "1 hr 1 min"},     {90, "1 hr 30 min"},
        {120, "2 hrs"},         {210, "3 hr 30 min"},
        {480, "8 hrs"},         {-59, "-59 min"},
        {-60, "-1 hrs"},        {-120, "-2 hrs"},
        {-90, "-1 hr -30 min"}, {least, "-153722867280912930 hr -8 min"},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(displayName(row.minutes), row.expected) << row.minutes;
    }
}

} // namespace

} // namespace quillmere::QuickActionConfiguration
