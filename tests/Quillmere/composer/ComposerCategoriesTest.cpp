#include "Quillmere/composer/ComposerCategories.h"

#include <gtest/gtest.h>

namespace quillmere {

namespace {

std::string described(std::string_view kinds, std::string_view custom) {
    std::string text;
    for (const AdjustmentCategoryOption& option : ComposerCategories::options(kinds, custom)) {
        text += (text.empty() ? "" : ", ") + option.title + " (" + option.systemImage + ")";
    }
    return text;
}

} // namespace

TEST(ComposerCategories, areTheVisibleKindsThenTheUsersOwn) {
    struct Row {
        const char* kinds;
        const char* custom;
        const char* options;
    };
    for (const Row& row : {Row{"other,appointment", "[]",
                               "Appointment (calendar.badge.clock), Other (ellipsis.circle)"},
                           Row{"longLunch", R"(["School  run","Gym"])",
                               "Long lunch (fork.knife), School run (tag), Gym (tag)"},
                           Row{"", R"(["appointment"])", "appointment (tag)"},
                           Row{"", "[]", "Other (ellipsis.circle)"},
                           Row{"", "no list", "Other (ellipsis.circle)"}}) {
        SCOPED_TRACE(std::string(row.kinds) + " and " + row.custom);
        EXPECT_EQ(described(row.kinds, row.custom), row.options);
    }
}

TEST(ComposerCategories, replaceAChoiceThatIsNotOffered) {
    const auto options = ComposerCategories::options("longLunch,other", "[]");
    EXPECT_EQ(ComposerCategories::valid("other", options), "other");
    EXPECT_EQ(ComposerCategories::valid("appointment", options), "longLunch");
    EXPECT_EQ(ComposerCategories::valid("appointment", {}), "other");
}

} // namespace quillmere
