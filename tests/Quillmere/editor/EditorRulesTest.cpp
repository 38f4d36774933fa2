#include "Quillmere/editor/AdjustmentAmount.h"
#include "Quillmere/editor/EditorCategories.h"

#include <gtest/gtest.h>

#include <limits>

namespace quillmere {

namespace {

std::string described(const AdjustmentAmount& amount) {
    return std::string(rawValue(amount.direction())) + " " + std::to_string(amount.hours()) + ":" +
           std::to_string(amount.minutes());
}

} // namespace

TEST(AdjustmentAmount, SplitsMinutesWithin24Hours) {
    struct Row {
        std::int64_t minutes;
        const char* amount;
        int signedMinutes;
    };
    for (const Row& row : {Row{-135, "Deduct 2:15", -135}, Row{59, "Add 0:59", 59},
                           Row{0, "Add 0:0", 0}, Row{1440, "Add 24:0", 1440},
                           Row{2000, "Add 24:0", 1440}, Row{-1441, "Deduct 24:0", -1440},
                           Row{std::numeric_limits<std::int64_t>::min(), "Deduct 24:0", -1440}}) {
        SCOPED_TRACE(row.minutes);
        const auto amount = AdjustmentAmount::of(row.minutes);
        EXPECT_EQ(described(amount), row.amount);
        EXPECT_EQ(amount.signedMinutes(), row.signedMinutes);
    }
}

TEST(AdjustmentAmount, KeepsHoursAndMinutesInTheirRanges) {
    auto amount = AdjustmentAmount::of(23 * 60 + 45);
    amount.setHours(24);
    EXPECT_EQ(described(amount), "Add 24:0") << "24 hours leave no minutes";
    amount.setMinutes(5);
    EXPECT_EQ(described(amount), "Add 24:0");
    amount.setHours(-1);
    amount.setMinutes(60);
    EXPECT_EQ(described(amount), "Add 0:59");
}

TEST(EditorCategories, BeginWithManualAndEndWithWhatIsKept) {
    struct Row {
        const char* name;
        const char* kinds;
        const char* custom;
        std::vector<std::string_view> kept;
        const char* titles;
    };
    for (const Row& row :
         {Row{"nothing but manual", "", "[]", {"manual"}, "Manual adjustment"},
          Row{"in their order",
              "other,appointment",
              R"(["Gym"])",
              {"manual"},
              "Manual adjustment, Appointment, Other, Gym"},
          Row{"a hidden kind",
              "other",
              "[]",
              {"longLunch"},
              "Manual adjustment, Other, Long lunch"},
          Row{"a legacy kind",
              "other",
              "[]",
              {"manual", "holiday"},
              "Manual adjustment, Other, Public holiday"},
          Row{"a category that was removed", "", "[]", {"custom:R3lt"}, "Manual adjustment, Gym"},
          Row{"one that is offered",
              "other",
              R"(["Gym"])",
              {"custom:R3lt", "other"},
              "Manual adjustment, Other, Gym"},
          Row{"no category at all",
              "other",
              "[]",
              {"Holiday", "custom:!"},
              "Manual adjustment, Other"}}) {
        SCOPED_TRACE(row.name);
        std::string titles;
        for (const auto& option : EditorCategories::options(row.kinds, row.custom, row.kept)) {
            titles += (titles.empty() ? "" : ", ") + option.title;
        }
        EXPECT_EQ(titles, row.titles);
    }
}

} // namespace quillmere
