#include "QuillmereKit/persistence/RuntimeEntitlements.h"
#include "QuillmereKit/records/TimeBankSettings.h"
#include "QuillmereKit/records/WorkEntry.h"
#include "QuillmereKit/records/WorkSchedule.h"
#include "tests/QuillmereKit/KitTest.h"

#include <cstdlib>
#include <filesystem>
#include <functional>
#include <map>

namespace quillmere::test {

namespace {

class FakeEntitlements final : public platform::Entitlements {
public:
    [[nodiscard]] std::optional<std::string> string(std::string_view key) const override {
        return key == "com.apple.developer.team-identifier" ? team : std::nullopt;
    }
    [[nodiscard]] std::vector<std::string> strings(std::string_view key) const override {
        const auto found = lists.find(std::string(key));
        return found == lists.end() ? std::vector<std::string>{} : found->second;
    }

    std::optional<std::string> team = "VANTOR";
    std::map<std::string, std::vector<std::string>> lists{
        {"com.apple.security.application-groups", {"other", "group.dev.vantor.quillmere"}},
        {"com.apple.developer.icloud-container-identifiers", {"iCloud.dev.vantor.quillmere"}},
        {"com.apple.developer.icloud-services", {"CloudDocuments", "CloudKit"}}};
};

TEST(RuntimeEntitlements, DecideWhatTheBuildMayUse) {
    using E = FakeEntitlements;
    const struct {
        const char* name;
        std::function<void(E&)> change;
        bool group;
        bool cloud;
    } rows[] = {
        {"everything", [](E&) {}, true, true},
        {"no team", [](E& e) { e.team.reset(); }, false, false},
        {"a team of white space", [](E& e) { e.team = " \n"; }, false, false},
        {"no group", [](E& e) { e.lists.erase("com.apple.security.application-groups"); }, false,
         false},
        {"the group in other case",
         [](E& e) {
             e.lists["com.apple.security.application-groups"] = {"Group.dev.vantor.quillmere"};
         },
         false, false},
        {"no container",
         [](E& e) { e.lists["com.apple.developer.icloud-container-identifiers"].clear(); }, true,
         false},
        {"the service in lower case",
         [](E& e) { e.lists["com.apple.developer.icloud-services"] = {"cloudkit"}; }, true, false},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        FakeEntitlements entitlements;
        row.change(entitlements);
        EXPECT_EQ(RuntimeEntitlements::hasUsableAppGroup(entitlements), row.group);
        EXPECT_EQ(RuntimeEntitlements::hasRequiredCloudKitEntitlements(entitlements), row.cloud);
    }
}

class ContainerTest : public ::testing::Test {
protected:
    ContainerTest() {
        std::string name = std::filesystem::temp_directory_path() / "kit-XXXXXX";
        root = mkdtemp(name.data());
        locations = {root / "default", root / "shared"};
    }
    void TearDown() override { std::filesystem::remove_all(root); }

    std::filesystem::path root;
    StoreLocations locations;
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
