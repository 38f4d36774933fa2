#include "Platform/entitlements/MemoryEntitlements.h"
#include "Platform/preferences/MemoryPreferences.h"
#include "QuillmereKit/records/TimeBankSettings.h"
#include "QuillmereKit/widget/WidgetRefreshThrottle.h"
#include "QuillmereKit/widget/WidgetSnapshotBuilder.h"
#include "QuillmereKit/widget/WidgetSnapshotStore.h"
#include "tests/QuillmereKit/KitTest.h"

#include <cmath>
#include <limits>

namespace quillmere::test {

namespace {

constexpr QuickActionConfiguration::Presets defaults = QuickActionConfiguration::defaultMinutes;

TEST(WidgetRefreshThrottle, KeepsGrantsApart) {
    const struct {
        const char* name;
        double at;
        double interval;
        bool granted;
    } rows[] = {
        {"the first", 100, 0.5, true},
        {"too early", 100.25, 0.5, false},
        {"just in time", 100.5, 0.5, true},
        {"the clock went back", 50, 0.5, true},
        {"from then on", 50.25, 0.5, false},
        {"negative interval", 50.25, -1, true},
        {"no interval", 50.25, std::nan(""), true},
        {"endless interval", 1e9, std::numeric_limits<double>::infinity(), false},
        {"a time that is none", std::nan(""), 0.5, false},
    };
    WidgetRefreshThrottle throttle;
    for (const auto& row : rows) {
        EXPECT_EQ(throttle.claim({row.at}, row.interval), row.granted) << row.name;
    }
}

TEST(WidgetSnapshot, WritesTimesSince2001) {
    const std::vector<std::int64_t> minutes{25};
    const WidgetSnapshot snapshot(60.5, 0, -0.25, std::nullopt, minutes, {978'307'260.5}, true);
    EXPECT_EQ(snapshot.encodedJSON(),
              R"({"balanceSeconds":60.5,"todayWorkedSeconds":0,"todayExpectedSeconds":-0.25,)"
              R"("quickActionMinutes":[20,30,60,120],"updatedAt":60.5,"isConfigured":true})");
    WidgetSnapshot running = snapshot;
    running.runningSince = Instant{978'307'200};
    EXPECT_NE(running, snapshot);
    EXPECT_EQ(WidgetSnapshot::decodeJSON(running.encodedJSON().value()), running);
    EXPECT_EQ(WidgetSnapshot::decodeJSON(snapshot.encodedJSON().value()), snapshot);
    running.balanceSeconds = std::nan("");
    EXPECT_FALSE(running.encodedJSON());
}

TEST(WidgetSnapshot, ReadsWhatOlderProgramsWrote) {
    const std::string required =
        R"("balanceSeconds":60,"todayWorkedSeconds":0,"todayExpectedSeconds":0,"updatedAt":1)";
    const WidgetSnapshot plain(60, 0, 0, std::nullopt, defaults, {978'307'201}, true);
    const struct {
        const char* name;
        std::string json;
        bool reads;
    } rows[] = {
        {"the required keys", "{" + required + "}", true},
        {"nulls and unknown keys",
         "{" + required +
             R"(,"runningSince":null,"quickActionMinutes":null,"isConfigured":null,"x":[1]})",
         true},
        {"a short list", "{" + required + R"(,"quickActionMinutes":[15]})", true},
        {"a time that is text", "{" + required + R"(,"runningSince":"now"})", false},
        {"a preset with a fraction", "{" + required + R"(,"quickActionMinutes":[1.5]})", false},
        {"a flag that is a number", "{" + required + R"(,"isConfigured":1})", false},
        {"no update time",
         R"({"balanceSeconds":60,"todayWorkedSeconds":0,"todayExpectedSeconds":0})", false},
        {"a list", "[]", false},
        {"no JSON", "snapshot", false},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(WidgetSnapshot::decodeJSON(row.json),
                  row.reads ? std::optional(plain) : std::nullopt)
            << row.name;
    }
}

TEST(WidgetSnapshot, ForgetsTodaysFiguresTheNextDay) {
    const WidgetSnapshot snapshot(60, 30, 20, std::nullopt, defaults, berlin(3, 4, 23), true);
    const Calendar calendar = calendarIn("Europe/Berlin");
    EXPECT_EQ(snapshot.displayed(berlin(3, 4, 1), calendar), snapshot);
    EXPECT_EQ(snapshot.displayed(berlin(3, 5), calendar),
              WidgetSnapshot(60, 0, 0, std::nullopt, defaults, berlin(3, 4, 23), true));
}

TEST(WidgetSnapshotStore, PublishesWhereTheBuildMay) {
    platform::MemoryPreferences standard;
    platform::MemoryPreferences suite;
    platform::MemoryEntitlements entitlements;
    entitlements.setStrings("com.apple.security.application-groups",
                            {"group.dev.vantor.quillmere"});
    EXPECT_EQ(&WidgetSnapshotStore::chosenDefaults(entitlements, &suite, standard), &standard);
    entitlements.setString("com.apple.developer.team-identifier", "VANTOR");
    EXPECT_EQ(&WidgetSnapshotStore::chosenDefaults(entitlements, &suite, standard), &suite);
    EXPECT_EQ(&WidgetSnapshotStore::chosenDefaults(entitlements, nullptr, standard), &standard);

    const platform::ManualClock clock{berlin(3, 4)};
    const WidgetSnapshot& empty = WidgetSnapshot::empty(clock);
    EXPECT_FALSE(empty.isConfigured);
    EXPECT_EQ(WidgetSnapshotStore::load(suite, clock), empty);
    suite.setString("widgetSnapshot", "{}");
    EXPECT_EQ(WidgetSnapshotStore::load(suite, clock), empty);
    WidgetSnapshot snapshot = WidgetSnapshot::placeholder(clock);
    WidgetSnapshotStore::save(snapshot, suite);
    EXPECT_EQ(WidgetSnapshotStore::load(suite, clock), snapshot);
    snapshot.balanceSeconds = std::nan("");
    WidgetSnapshotStore::save(snapshot, suite);
    EXPECT_EQ(WidgetSnapshotStore::load(suite, clock).balanceSeconds, 16'200);
}

class WidgetBuilderTest : public StoreTest {};

TEST_F(WidgetBuilderTest, SumsUpTheStoreAsOfNow) {
    auto& settings = context->insert(TimeBankSettings::create(clock));
    settings.setWeekdayMinutes(WeekdayMinutes{});
    settings.setStartingBalanceMinutes(100);
    settings.setHasCompletedOnboarding(true);
    settings.setQuickActionMinutes(std::vector<std::int64_t>{5, 10, 15, 20});
    insertChange(berlin(3, 3, 9), 15);
    insertChange(berlin(3, 4), 60);
    insertChange(now, 30);
    insertChange(berlin(3, 4, 10), -45);
    insertChange(berlin(3, 4, 12.1), 10);
    insertChange(berlin(3, 1), 99'999); // repaired before it is counted
    context->save();
    platform::MemoryPreferences suite;
    const WidgetSnapshot snapshot = WidgetSnapshotBuilder::save(*context, now, suite);
    EXPECT_EQ(snapshot, WidgetSnapshot((100 + 60'000 + 15 + 60 + 30 - 45) * 60.0, 5400, 2700,
                                       std::nullopt, settings.quickActionMinutes(), now, true));
    EXPECT_EQ(WidgetSnapshotStore::load(suite, clock), snapshot);
    EXPECT_FALSE(context->hasChanges());
}

TEST_F(WidgetBuilderTest, TellsThatSetupIsMissing) {
    const WidgetSnapshot snapshot = WidgetSnapshotBuilder::make(*context, now);
    EXPECT_EQ(snapshot, WidgetSnapshot(0, 0, 0, std::nullopt, defaults, now, false));
}

} // namespace

} // namespace quillmere::test
