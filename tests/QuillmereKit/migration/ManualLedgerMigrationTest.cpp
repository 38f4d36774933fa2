#include "QuillmereKit/migration/ManualLedgerMigration.h"

#include "QuillmereKit/maintenance/RepairMemory.h"
#include "QuillmereKit/records/WorkEntry.h"
#include "QuillmereKit/records/WorkSchedule.h"
#include "tests/QuillmereKit/KitTest.h"

#include <limits>

namespace quillmere::test {

namespace {

class MigrationTest : public StoreTest {
protected:
    TimeBankSettings& insertSettings(bool completed, std::int64_t startingBalance = 0) {
        auto settings = TimeBankSettings::create(clock);
        settings->setCalculationStartDate(berlin(3, 2));
        settings->setWeekdayMinutes(WeekdayMinutes{});
        settings->setStartingBalanceMinutes(startingBalance);
        settings->setHasCompletedOnboarding(completed);
        return context->insert(std::move(settings));
    }

    WorkEntry& insertEntry(Instant from, std::optional<Instant> to) {
        return context->insert(
            std::make_unique<WorkEntry>(Uuid::random(), from, to, 0, "", from, from));
    }

    BalanceAdjustment& insertMarker(double modifiedAt, double createdAt = 0) {
        return context->insert(std::make_unique<BalanceAdjustment>(
            ManualLedgerMigration::adjustmentID(), now, 0, "", BalanceAdjustmentKind::manual,
            Instant{createdAt}, Instant{modifiedAt}));
    }

    bool reconcile(TimeBankSettings& settings) {
        return ManualLedgerMigration::reconcile(*context, settings, calendar, now, true);
    }
};

TEST_F(MigrationTest, WaitsForSetupAndRunsOnce) {
    TimeBankSettings& settings = insertSettings(false, 5);
    context->save();
    EXPECT_FALSE(reconcile(settings));
    settings.setHasCompletedOnboarding(true);
    EXPECT_TRUE(reconcile(settings));
    EXPECT_FALSE(context->hasChanges());
    const auto markers = context->fetch<BalanceAdjustment>();
    ASSERT_EQ(markers.size(), 1u);
    EXPECT_EQ(markers[0]->values(), (BalanceAdjustmentValues{ManualLedgerMigration::adjustmentID(),
                                                             now, 0, "", "manual", now, now}));
    EXPECT_EQ(settings.startingBalanceMinutes(), 5);
    EXPECT_EQ(settings.modifiedAt(), now);
    insertEntry(berlin(3, 3, 8), berlin(3, 3, 12));
    EXPECT_FALSE(reconcile(settings));
    EXPECT_EQ(settings.startingBalanceMinutes(), 5);
}

TEST_F(MigrationTest, FoldsTheTrackedHistoryIntoTheStartingBalance) {
    const struct {
        const char* name;
        std::int64_t before;
        double workedSeconds;
        std::int64_t plannedToday;
        std::int64_t after;
    } rows[] = {
        {"a surplus is cut to whole minutes", 10, 90, 0, 11},
        {"a deficit is cut towards zero", 10, 30, 2, 9},
        {"clamped at the top", 59'999, 3600, 0, 60'000},
        {"clamped at the bottom", -60'000, 0, 60, -60'000},
        {"any stored balance", std::numeric_limits<std::int64_t>::max(), 0, 60, 60'000},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        TimeBankSettings& settings = insertSettings(true, row.before);
        settings.setWeekdayMinutes(std::vector<std::int64_t>{0, 0, row.plannedToday});
        insertEntry(berlin(3, 3, 8), berlin(3, 3, 8) + row.workedSeconds);
        insertChange(berlin(3, 3, 9), 1'000);
        EXPECT_TRUE(reconcile(settings));
        EXPECT_EQ(settings.startingBalanceMinutes(), row.after);
        context->removeAll<WorkEntry>();
        context->removeAll<BalanceAdjustment>();
    }
}

TEST_F(MigrationTest, StopsRunningEntries) {
    const WorkEntry& running = insertEntry(berlin(3, 4, 11), std::nullopt);
    const WorkEntry& future = insertEntry(berlin(3, 4, 15), std::nullopt);
    const WorkEntry& ended = insertEntry(berlin(3, 4, 8), berlin(3, 4, 9));
    TimeBankSettings& settings = insertSettings(true);
    EXPECT_TRUE(reconcile(settings));
    EXPECT_EQ(running.endedAt(), now);
    EXPECT_EQ(running.modifiedAt(), now);
    EXPECT_EQ(future.endedAt(), berlin(3, 4, 15));
    EXPECT_EQ(ended.modifiedAt(), berlin(3, 4, 8));
    EXPECT_EQ(settings.startingBalanceMinutes(), 120);
}

TEST_F(MigrationTest, KeepsTheMarkerChangedLast) {
    TimeBankSettings& settings = insertSettings(true, 5);
    insertMarker(1, 9);
    BalanceAdjustment& kept = insertMarker(3, 2);
    insertMarker(3, 1);
    EXPECT_TRUE(reconcile(settings));
    EXPECT_EQ(context->fetch<BalanceAdjustment>(), std::vector{&kept});
    EXPECT_EQ(settings.startingBalanceMinutes(), 5);
    EXPECT_FALSE(reconcile(settings));
}

TEST_F(MigrationTest, LeavesSavingToTheCaller) {
    TimeBankSettings& settings = insertSettings(true);
    context->save();
    EXPECT_TRUE(ManualLedgerMigration::reconcile(*context, settings, calendar, now, false));
    EXPECT_TRUE(makeContext()->fetch<BalanceAdjustment>().empty());
    context->rollback();
    EXPECT_TRUE(context->fetch<BalanceAdjustment>().empty());
}

TEST_F(MigrationTest, FindsItsMarkersAgainInALargeStore) {
    TimeBankSettings& settings = insertSettings(true);
    for (std::size_t i = 0; i < RepairMemory::worthRemembering; ++i) {
        insertChange(now, 1);
    }
    insertMarker(1);
    context->save();
    EXPECT_FALSE(reconcile(settings)); // remembers the place
    const auto remembered = context->revision();
    EXPECT_FALSE(reconcile(settings));
    EXPECT_EQ(context->revision(), remembered);
    const auto other = makeContext();
    other->insert(std::make_unique<BalanceAdjustment>(ManualLedgerMigration::adjustmentID(), now, 0,
                                                      "", BalanceAdjustmentKind::manual, now, now));
    other->save();
    EXPECT_TRUE(reconcile(settings)); // a second one arrived
    EXPECT_FALSE(reconcile(settings));
    context->removeAll<BalanceAdjustment>();
    context->save();
    EXPECT_TRUE(reconcile(settings)); // none is left, so it migrates anew
    EXPECT_EQ(context->fetch<BalanceAdjustment>().size(), 1u);
}

} // namespace

} // namespace quillmere::test
