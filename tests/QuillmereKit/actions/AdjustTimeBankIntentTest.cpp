#include "QuillmereKit/actions/AdjustTimeBankIntent.h"

#include "Platform/entitlements/MemoryEntitlements.h"
#include "Platform/preferences/MemoryPreferences.h"
#include "QuillmereKit/actions/AdjustmentKeyError.h"
#include "QuillmereKit/maintenance/DataStoreMaintenance.h"
#include "QuillmereKit/maintenance/StorePreparation.h"
#include "QuillmereKit/records/ActionReceipt.h"
#include "QuillmereKit/widget/WidgetSnapshotStore.h"
#include "tests/Platform/files/TestFolder.h"
#include "tests/QuillmereKit/KitTest.h"

#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <limits>

namespace quillmere::test {

namespace {

using Changes = platform::store::Filter<BalanceAdjustment>;
using Outcome = AdjustTimeBankIntent::Outcome;
using platform::store::Comparison;
using platform::store::Context;

class CountingWidgetCenter final : public WidgetCenter {
public:
    void reloadAllTimelines() override { ++reloads; }

    int reloads = 0;
};

class ActionTest : public ::testing::Test {
protected:
    ActionTest() {
        entitlements.setString("com.apple.developer.team-identifier", "VANTOR");
        entitlements.setStrings("com.apple.security.application-groups",
                                {"group.dev.vantor.quillmere"});
    }

    AdjustTimeBankIntent::Result perform(std::int64_t minutes) {
        return AdjustTimeBankIntent(minutes).perform(services());
    }
    AdjustTimeBankIntent::KeyedResult once(std::string_view key, std::int64_t minutes) {
        return AdjustTimeBankIntent(minutes).performOnce(key, services());
    }
    /// The store as another program has it open.
    [[nodiscard]] std::unique_ptr<Context> open() const {
        return QuillmerePersistence::makeContainer(false, false, true, locations)
            ->makeContext({clock, calendars});
    }
    void setUpTimeBank(std::int64_t startingBalanceMinutes = 0) const {
        const auto context = open();
        TimeBankSettings& settings = StorePreparation::prepare(*context);
        settings.setStartingBalanceMinutes(startingBalanceMinutes);
        StorePreparation::completeOnboarding(*context, settings);
    }
    /// All but the marker of the migration.
    [[nodiscard]] static std::vector<BalanceAdjustment*> changes(Context& context) {
        return context.fetch<BalanceAdjustment>(
            Changes{}.where<&BalanceAdjustmentValues::minutes>(Comparison::notEqual, 0));
    }
    [[nodiscard]] WidgetSnapshot published() const {
        return WidgetSnapshotStore::load(suite, clock);
    }

    const TestFolder folder;
    StoreLocations locations{folder.path() / "default", folder.path() / "shared"};
    platform::MemoryEntitlements entitlements;
    platform::MemoryPreferences suite;
    platform::MemoryPreferences standard;
    platform::ManualClock clock{berlin(3, 4, 12)};
    CountingWidgetCenter widgets;

private:
    [[nodiscard]] AdjustTimeBankIntent::Services services() {
        return {entitlements, locations, clock, calendars, &suite, standard, widgets};
    }

    platform::FixedCalendarSource calendars{berlinCalendar};
};

TEST_F(ActionTest, RefusesImpossibleAmountsWithoutAStore) {
    for (const std::int64_t minutes :
         {std::int64_t{0}, std::int64_t{1441}, std::int64_t{-1441}, INT64_MIN}) {
        EXPECT_EQ(perform(minutes).outcome, Outcome::invalidAmount);
        EXPECT_EQ(once("key", minutes).result.dialog, "Choose a nonzero amount up to 24 hours.");
    }
    EXPECT_TRUE(std::filesystem::is_empty(folder.path()));
    EXPECT_EQ(widgets.reloads, 0);
}

TEST_F(ActionTest, RecordsTheChangeAndTellsTheWidget) {
    setUpTimeBank(100);
    const struct {
        std::int64_t minutes;
        std::int64_t balance;
        const char* dialog;
    } rows[] = {
        {1440, 1540, "Time added to your bank."},
        {-1440, 100, "Time subtracted from your bank."},
        {-30, 70, "Time subtracted from your bank."},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.minutes);
        clock.advance(1);
        EXPECT_EQ(perform(row.minutes).dialog, row.dialog);
        const auto context = open();
        const auto found = context->fetch<BalanceAdjustment>(
            Changes{}.where<&BalanceAdjustmentValues::date>(Comparison::equal, clock.now()));
        ASSERT_EQ(found.size(), 1u);
        EXPECT_EQ(found[0]->minutes(), row.minutes);
        EXPECT_EQ(found[0]->kindRawValue() + found[0]->note(), "manual");
        EXPECT_EQ(published().balanceSeconds, static_cast<double>(row.balance) * minute);
        EXPECT_EQ(published().updatedAt, clock.now());
    }
    EXPECT_EQ(widgets.reloads, 3);
}

TEST_F(ActionTest, AsksForSetupWhereverTheStoreLies) {
    for (const char* team : {"VANTOR", ""}) {
        entitlements.setString("com.apple.developer.team-identifier", team);
        EXPECT_EQ(perform(30).dialog,
                  "Open Quillmere and finish setup before changing your time bank.");
        EXPECT_EQ(once("key", 30).result.outcome, Outcome::needsSetup);
    }
    EXPECT_EQ(widgets.reloads, 4);
    EXPECT_TRUE(suite.contains("widgetSnapshot"));
    EXPECT_TRUE(standard.contains("widgetSnapshot"));
    EXPECT_FALSE(published().isConfigured);
    EXPECT_TRUE(changes(*open()).empty());
}

TEST_F(ActionTest, PassesTheFailuresOfTheStoreOn) {
    std::ofstream(locations.sharedContainer) << "not a folder";
    EXPECT_THROW(perform(30), platform::store::StoreError);
    EXPECT_EQ(widgets.reloads, 0);
}

TEST_F(ActionTest, AKeyBooksOnce) {
    EXPECT_FALSE(once("monday", 10).booking) << "setup is not complete";
    setUpTimeBank(100);
    const auto first = once("monday", -45);
    ASSERT_TRUE(first.booking);
    EXPECT_EQ(first.booking->balanceMinutes, 55);
    {
        const auto context = open();
        ASSERT_EQ(changes(*context).size(), 1u);
        EXPECT_EQ(changes(*context)[0]->id(), first.booking->recordId);
        context->remove(*changes(*context)[0]);
        context->save();
    }
    EXPECT_EQ(once("Monday", 10).booking.value().balanceMinutes, 110);
    clock.advance(400 * day);
    const auto again = once("monday", -45);
    EXPECT_EQ(again.result.dialog, "Time subtracted from your bank.");
    ASSERT_TRUE(again.booking);
    EXPECT_EQ(again.booking->recordId, first.booking->recordId);
    EXPECT_EQ(again.booking->balanceMinutes, 55);
    EXPECT_EQ(changes(*open()).size(), 1u);
    EXPECT_EQ(published().updatedAt, clock.now()) << "the run before may not have come to it";

    const std::string longest(200, 'k');
    EXPECT_TRUE(once(longest, 30).booking);
    for (const auto& [key, minutes] :
         {std::pair{std::string(), 30}, {longest + 'k', 30}, {longest, -30}}) {
        EXPECT_THROW(once(key, minutes), AdjustmentKeyError);
    }
    EXPECT_EQ(changes(*open()).size(), 2u);
    DataStoreMaintenance::eraseAll(*open());
    setUpTimeBank();
    EXPECT_EQ(once("monday", 20).booking.value().balanceMinutes, 20) << "the keys went too";
}

TEST_F(ActionTest, ProcessesThatShareKeysLoseNothingAndDoubleNothing) {
    constexpr int processes = 6;
    constexpr int rounds = 8;
    setUpTimeBank();
    const auto start = [this](int process, int lastRound) {
        const pid_t child = ::fork();
        for (int round = 0; child == 0 && round < lastRound; ++round) {
            (void)once("shared " + std::to_string(round), 2);
            (void)once(std::to_string(process) + '.' + std::to_string(round), 1);
        }
        if (child == 0) {
            ::_exit(0);
        }
        return child;
    };
    const pid_t toBeKilled = start(processes, std::numeric_limits<int>::max());
    std::vector<pid_t> children;
    for (int process = 0; process < processes; ++process) {
        children.push_back(start(process, rounds));
    }
    int status = 0;
    for (const pid_t child : children) {
        ::waitpid(child, &status, 0);
        EXPECT_EQ(status, 0);
    }
    ::kill(toBeKilled, SIGKILL);
    ::waitpid(toBeKilled, &status, 0);
    EXPECT_TRUE(WIFSIGNALED(status) && WTERMSIG(status) == SIGKILL);

    const auto context = open();
    const auto booked = changes(*context);
    auto receipts = context->fetch<ActionReceipt>();
    EXPECT_EQ(receipts.size(), booked.size());
    EXPECT_GE(booked.size(), (processes + 1u) * rounds);
    std::ranges::sort(receipts, {}, [](const ActionReceipt* receipt) { return receipt->key(); });
    std::int64_t balance = 0; // each receipt tells that of all booked up to it
    for (const ActionReceipt* receipt : receipts) {
        balance += receipt->minutes();
        EXPECT_EQ(receipt->balanceMinutes(), balance);
        EXPECT_EQ(std::ranges::count(booked, receipt->recordId(), &BalanceAdjustment::id), 1);
    }
}

} // namespace

} // namespace quillmere::test
