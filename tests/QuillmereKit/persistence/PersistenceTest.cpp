#include "Platform/entitlements/MemoryEntitlements.h"
#include "QuillmereKit/persistence/RuntimeEntitlements.h"
#include "QuillmereKit/records/TimeBankSettings.h"
#include "QuillmereKit/records/WorkEntry.h"
#include "QuillmereKit/records/WorkSchedule.h"
#include "tests/Platform/files/TestFolder.h"
#include "tests/QuillmereKit/KitTest.h"

#include <filesystem>

namespace quillmere::test {

namespace {

constexpr const char* ourGroup = "group.dev.vantor.quillmere";
constexpr const char* ourContainer = "iCloud.dev.vantor.quillmere";

TEST(RuntimeEntitlements, DecideWhatTheBuildMayUse) {
    const struct {
        const char* name;
        const char* team;
        const char* group;
        const char* container;
        const char* service;
        bool usesGroup;
        bool usesCloud;
    } rows[] = {
        {"everything", "VANTOR", ourGroup, ourContainer, "CloudKit", true, true},
        {"no team", "", ourGroup, ourContainer, "CloudKit", false, false},
        {"a team of white space", " \n", ourGroup, ourContainer, "CloudKit", false, false},
        {"no group", "VANTOR", "", ourContainer, "CloudKit", false, false},
        {"the group in other case", "VANTOR", "Group.dev.vantor.quillmere", ourContainer,
         "CloudKit", false, false},
        {"no container", "VANTOR", ourGroup, "", "CloudKit", true, false},
        {"the service in lower case", "VANTOR", ourGroup, ourContainer, "cloudkit", true, false},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        platform::MemoryEntitlements entitlements;
        EXPECT_FALSE(RuntimeEntitlements::hasUsableAppGroup(entitlements));
        entitlements.setString("com.apple.developer.team-identifier", row.team);
        entitlements.setStrings("com.apple.security.application-groups", {"other", row.group});
        entitlements.setStrings("com.apple.developer.icloud-container-identifiers",
                                {row.container});
        entitlements.setStrings("com.apple.developer.icloud-services",
                                {"CloudDocuments", row.service});
        EXPECT_EQ(RuntimeEntitlements::hasUsableAppGroup(entitlements), row.usesGroup);
        EXPECT_EQ(RuntimeEntitlements::hasRequiredCloudKitEntitlements(entitlements),
                  row.usesCloud);
    }
}

class ContainerTest : public ::testing::Test {
protected:
    const TestFolder folder;
    const std::filesystem::path root = folder.path();
    const StoreLocations locations{root / "default", root / "shared"};
    platform::ManualClock clock{berlin(3, 4)};
    platform::FixedCalendarSource calendars{calendarIn("Europe/Berlin")};
};

TEST_F(ContainerTest, LiesInTheSharedContainerOrTheDefaultFolder) {
    using QuillmerePersistence::makeContainer;
    EXPECT_THROW(static_cast<void>(makeContainer(false, true, true, locations)),
                 platform::store::StoreError);
    EXPECT_TRUE(makeContainer(true, true, true, locations)->configuration().inMemory);
    EXPECT_TRUE(std::filesystem::is_empty(root));
    EXPECT_TRUE(makeContainer(false, false, false, locations));
    EXPECT_TRUE(std::filesystem::exists(root / "default/Quillmere.sqlite"));
    EXPECT_FALSE(std::filesystem::exists(root / "shared"));
    EXPECT_TRUE(makeContainer(false, false, true, locations));
    EXPECT_TRUE(std::filesystem::exists(root / "shared/Quillmere.sqlite"));
}

template <class R>
void expectRoundTrip(const StoreLocations& locations,
                     platform::store::ContextEnvironment environment, std::unique_ptr<R> record) {
    const auto values = record->values();
    const auto open = [&] {
        return QuillmerePersistence::makeContainer(false, false, false, locations)
            ->makeContext(environment);
    };
    const auto context = open();
    context->insert(std::move(record));
    context->save();
    const auto reopened = open();
    const auto records = reopened->template fetch<R>();
    ASSERT_EQ(records.size(), 1u);
    EXPECT_EQ(records[0]->values(), values);
}

TEST_F(ContainerTest, KeepsEveryFieldOfEveryRecord) {
    const std::vector<std::int64_t> week{1, 2, 3, 4, 5, 6, 7};
    const std::vector<std::int64_t> presets{5, 10, 15, 20};
    const platform::store::ContextEnvironment environment{clock, calendars};
    expectRoundTrip(locations, environment,
                    std::make_unique<BalanceAdjustment>(uuid(1), Instant{0.1}, -5, "nöte",
                                                        BalanceAdjustmentKind::other, Instant{2},
                                                        Instant{3}));
    expectRoundTrip(locations, environment,
                    std::make_unique<WorkEntry>(uuid(1), Instant{1}, Instant{2}, 3, "n", Instant{4},
                                                Instant{5}));
    expectRoundTrip(
        locations, environment,
        std::make_unique<WorkSchedule>(uuid(1), Instant{1}, week, Instant{2}, Instant{3}));
    expectRoundTrip(locations, environment,
                    std::make_unique<TimeBankSettings>(uuid(1), Instant{1}, 2, week, presets,
                                                       "other", R"(["Gym"])", true, Instant{3}));
}

} // namespace

} // namespace quillmere::test
