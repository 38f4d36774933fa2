#include "QuillmereKit/rules/AdjustmentCategoryOption.h"
#include "QuillmereKit/rules/AdjustmentCategoryValidation.h"
#include "QuillmereKit/rules/AdjustmentKindConfiguration.h"
#include "QuillmereKit/rules/CustomAdjustmentCategory.h"
#include "QuillmereKit/rules/CustomAdjustmentCategoryConfiguration.h"

#include <gmock/gmock.h>

#include <limits>

namespace quillmere {

namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

std::string repeated(std::string_view text, int times) {
    std::string result;
    for (int i = 0; i < times; ++i) {
        result += text;
    }
    return result;
}

std::vector<std::string> titlesOf(std::string_view json) {
    std::vector<std::string> titles;
    for (const auto& category : CustomAdjustmentCategoryConfiguration::categories(json)) {
        titles.push_back(category.title());
    }
    return titles;
}

std::string rewritten(std::string_view json) {
    return CustomAdjustmentCategoryConfiguration::rawValue(
        CustomAdjustmentCategoryConfiguration::categories(json));
}

TEST(AdjustmentKindConfiguration, ReadsAndWritesTheConfigurableKinds) {
    const std::string all = "appointment,personalErrands,longLunch,other";
    EXPECT_EQ(AdjustmentKindConfiguration::defaultRawValue(), all);
    const struct {
        const char* given;
        std::string rewritten;
    } rows[] = {
        {"other,appointment,bogus,,manual", "appointment,other"},
        {"other,other", "other"},
        {" other", ""},
        {"Other", ""},
        {"", ""},
        {"manual", ""},
        {"holiday,appointment", all},
        {"appointment,paidLeave", all},
        {"sickLeave", all},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(
            AdjustmentKindConfiguration::rawValue(AdjustmentKindConfiguration::kinds(row.given)),
            row.rewritten)
            << row.given;
    }
    using enum BalanceAdjustmentKind;
    EXPECT_EQ(AdjustmentKindConfiguration::rawValue({manual, holiday, longLunch}), "longLunch");
}

TEST(CustomAdjustmentCategory, IsItsNormalisedTitle) {
    const struct {
        const char* name;
        std::string given;
        std::string title;
        std::string rawValue;
    } rows[] = {
        {"white space of every kind", "  School   run\n", "School run", "custom:U2Nob29sIHJ1bg=="},
        {"no-break and ideographic spaces", "a\u00A0\u3000b\u2028", "a b", "custom:YSBi"},
        {"cut to 40 characters", repeated("x", 45), repeated("x", 40),
         "custom:eHh4eHh4eHh4eHh4eHh4eHh4eHh4eHh4eHh4eHh4eHh4eHh4eHh4eA=="},
        {"the cut may leave the joining space", repeated("x", 39) + " y", repeated("x", 39) + " ",
         "custom:eHh4eHh4eHh4eHh4eHh4eHh4eHh4eHh4eHh4eHh4eHh4eHh4eHh4IA=="},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        const auto category = CustomAdjustmentCategory::fromTitle(row.given);
        ASSERT_TRUE(category);
        EXPECT_EQ(category->title(), row.title);
        EXPECT_EQ(category->rawValue(), row.rawValue);
    }
    const std::string family = "👩‍👩‍👧";
    EXPECT_EQ(CustomAdjustmentCategory::fromTitle(repeated(family, 41))->title(),
              repeated(family, 40));
    EXPECT_FALSE(CustomAdjustmentCategory::fromTitle(" \u2003\n"));
}

TEST(AdjustmentCategoryValidation, MakesRawValuesCanonical) {
    const struct {
        const char* given;
        const char* expected;
        bool resolves;
    } rows[] = {
        {"holiday", "holiday", true},
        {"manual", "manual", true},
        {"Holiday", "manual", false},
        {"", "manual", false},
        {"custom:R3lt", "custom:R3lt", true},     // "Gym"
        {"custom:IEd5bSAg", "custom:R3lt", true}, // " Gym  "
        {"custom:ICA=", "manual", false},         // "  "
        {"custom:", "manual", false},
        {"custom:R3l", "manual", false},  // unpadded
        {"custom:R3 t", "manual", false}, // not the alphabet
        {"custom:/w==", "manual", false}, // not UTF-8
        {"Custom:R3lt", "manual", false},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.given);
        EXPECT_EQ(AdjustmentCategoryValidation::normalizedRawValue(row.given), row.expected);
        const auto option = AdjustmentCategoryOption::resolve(row.given);
        EXPECT_EQ(option.has_value(), row.resolves);
        EXPECT_EQ(option ? option->id() : "manual", row.expected);
    }
}

TEST(AdjustmentCategoryOption, DescribesBuiltInAndCustomCategories) {
    EXPECT_EQ(AdjustmentCategoryOption::resolve("holiday"),
              (AdjustmentCategoryOption{"holiday", "Public holiday", "calendar.badge.checkmark",
                                        AdjustmentCategoryBehavior::credit}));
    EXPECT_EQ(
        AdjustmentCategoryOption::resolve("custom:R3lt"),
        (AdjustmentCategoryOption{"custom:R3lt", "Gym", "tag", AdjustmentCategoryBehavior::debit}));
    std::string behaviors;
    for (const BalanceAdjustmentKind kind : BalanceAdjustmentKinds::all) {
        EXPECT_EQ(BalanceAdjustmentKinds::fromRawValue(rawValue(kind)), kind);
        behaviors += "mcd"[static_cast<int>(behavior(kind))];
    }
    EXPECT_EQ(behaviors, "mddddccc");
}

TEST(AdjustmentCategoryValidation, ClampsAmountsWithoutFlippingTheirSign) {
    constexpr auto least = std::numeric_limits<std::int64_t>::min();
    const struct {
        const char* category;
        std::int64_t given;
        std::int64_t expected;
    } rows[] = {
        {"appointment", 90, 0},        {"appointment", -2000, -1440}, {"appointment", -90, -90},
        {"sickLeave", -90, 0},         {"sickLeave", 2000, 1440},     {"custom:R3lt", 30, 0},
        {"custom:R3lt", least, -1440}, {"manual", 70000, 60000},      {"manual", least, -60000},
        {"unknown", -30, -30},         {"custom:", 5000, 5000},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(AdjustmentCategoryValidation::normalizedMinutes(row.given, row.category),
                  row.expected)
            << row.category << ' ' << row.given;
    }
}

TEST(CustomAdjustmentCategoryConfiguration, ReadsTitlesOnceEachWhateverTheirCase) {
    EXPECT_THAT(titlesOf(R"(["Gym", "gym", " GYM ", "", "Dentist"])"),
                ElementsAre("Gym", "Dentist"));
    EXPECT_THAT(titlesOf(R"(["Ärzte", "ÄRZTE"])"), ElementsAre("Ärzte"));
    for (const char* bad :
         {"", "{}", "[1]", R"(["a", null])", R"(["a"] x)", R"("a")", R"(["\ud800"])"}) {
        EXPECT_THAT(titlesOf(bad), IsEmpty()) << bad;
    }
    std::string many = "[\"t1\"";
    for (int i = 2; i <= 25; ++i) {
        many += ",\"t" + std::to_string(i) + "\",\"T1\"";
    }
    const auto titles = titlesOf(many + "]");
    ASSERT_EQ(titles.size(), 20u);
    EXPECT_EQ(titles.back(), "t20");
}

TEST(CustomAdjustmentCategoryConfiguration, WritesCompactJson) {
    EXPECT_EQ(rewritten(R"( [ "Père \"Noël\"", "a\/b" ] )"), R"(["Père \"Noël\"","a\/b"])");
    EXPECT_EQ(rewritten("not JSON"), "[]");
    EXPECT_EQ(CustomAdjustmentCategoryConfiguration::rawValue(
                  std::vector{CustomAdjustmentCategory::fromTitle("Gym").value(),
                              CustomAdjustmentCategory::fromTitle("GYM").value()}),
              R"(["Gym"])");
}

} // namespace

} // namespace quillmere
