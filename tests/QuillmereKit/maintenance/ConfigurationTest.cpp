#include "QuillmereKit/maintenance/DataStoreMaintenance.h"
#include "QuillmereKit/maintenance/RepairMemory.h"
#include "QuillmereKit/maintenance/StorePreparation.h"
#include "QuillmereKit/migration/ManualLedgerMigration.h"
#include "QuillmereKit/records/WorkEntry.h"
#include "QuillmereKit/records/WorkSchedule.h"
#include "tests/QuillmereKit/KitTest.h"

#include <functional>
#include <limits>

namespace quillmere::test {

namespace {

using platform::store::Revision;

class ConfigurationTest : public StoreTest {
protected:
    TimeBankSettings& repair(Instant at) {
        return DataStoreMaintenance::reconcileConfiguration(*context, calendar, at, true);
    }
    TimeBankSettings& repair() { return repair(now); }

    TimeBankSettings& insertSettings(TimeBankSettingsValues values) {
        return context->insert(std::make_unique<TimeBankSettings>(std::move(values)));
    }

    WorkSchedule& insertSchedule(Instant effectiveFrom, double modifiedAt, double createdAt,
                                 std::uint8_t id) {
        return context->insert(
            std::make_unique<WorkSchedule>(uuid(id), effectiveFrom, WeekdayPlan::defaultWeek,
                                           Instant{createdAt}, Instant{modifiedAt}));
    }

    TimeBankSettingsValues clean = [this] {
        TimeBankSettingsValues values;
        values.id = uuid(1);
        values.calculationStartDate = berlin(2, 1);
        values.modifiedAt = now - 10;
        return values;
    }();
};

TEST_F(ConfigurationTest, CreatesTheDefaultSettings) {
    const TimeBankSettings& settings = repair();
    EXPECT_FALSE(context->hasChanges());
    TimeBankSettingsValues expected;
    expected.id = settings.id();
    expected.calculationStartDate = berlin(3, 4);
    expected.modifiedAt = now;
    EXPECT_EQ(settings.values(), expected);
    const Revision saved = context->revision();
    EXPECT_EQ(&repair(), &settings);
    EXPECT_EQ(context->revision(), saved);
}

TEST_F(ConfigurationTest, KeepsTheSettingsThatRankHighest) {
    const struct {
        const char* name;
        bool completed[3];
        double age[3];
        std::uint8_t survivor;
    } rows[] = {
        {"completed setup first", {false, true, false}, {0, 9, 0}, 2},
        {"then the latest change", {true, true, true}, {3, 2, 1}, 3},
        {"then the greatest identifier", {false, false, false}, {1, 1, 1}, 3},
        {"a time far ahead counts as now", {false, false, false}, {-1000, 0, 50}, 2},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        context->removeAll<TimeBankSettings>();
        for (std::uint8_t i = 0; i < 3; ++i) {
            TimeBankSettingsValues values = clean;
            values.id = uuid(static_cast<std::uint8_t>(i + 1));
            values.hasCompletedOnboarding = row.completed[i];
            values.modifiedAt = now - row.age[i];
            insertSettings(values);
        }
        const TimeBankSettings& survivor = repair();
        EXPECT_EQ(survivor.id(), uuid(row.survivor));
        EXPECT_EQ(context->fetch<TimeBankSettings>().size(), 1u);
    }
}

TEST_F(ConfigurationTest, NormalisesTheSettings) {
    using V = TimeBankSettingsValues;
    const struct {
        const char* name;
        std::function<void(V&)> spoil;
        std::function<void(V&)> mend;
    } rows[] = {
        {"start before 2000", [](V& v) { v.calculationStartDate = berlin(5, 5, 0, 1990); },
         [](V& v) { v.calculationStartDate = berlin(1, 1, 0, 2000); }},
        {"start in the future", [](V& v) { v.calculationStartDate = berlin(5, 5); },
         [](V& v) { v.calculationStartDate = berlin(3, 4); }},
        {"start inside a day", [](V& v) { v.calculationStartDate = berlin(2, 5, 9); },
         [](V& v) { v.calculationStartDate = berlin(2, 5); }},
        {"weekday", [](V& v) { v.sundayMinutes = 2000, v.mondayMinutes = -1; },
         [](V& v) { v.sundayMinutes = 1440, v.mondayMinutes = 0; }},
        {"balance",
         [](V& v) { v.startingBalanceMinutes = std::numeric_limits<std::int64_t>::min(); },
         [](V& v) { v.startingBalanceMinutes = -60'000; }},
        {"quick actions", [](V& v) { v.quickActionOneMinutes = 25; },
         [](V& v) { v.quickActionOneMinutes = 20; }},
        {"kinds", [](V& v) { v.visibleAdjustmentKindsRawValue = "other,bogus,appointment"; },
         [](V& v) { v.visibleAdjustmentKindsRawValue = "appointment,other"; }},
        {"categories", [](V& v) { v.customAdjustmentCategoriesRawValue = "{}"; },
         [](V& v) { v.customAdjustmentCategoriesRawValue = "[]"; }},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        context->removeAll<TimeBankSettings>();
        V given = clean;
        row.spoil(given);
        insertSettings(given);
        V expected = clean;
        expected.modifiedAt = now + 1;
        row.mend(expected);
        const TimeBankSettings& settings = repair(now + 1);
        EXPECT_EQ(settings.values(), expected);
        repair(now + 2);
        EXPECT_EQ(settings.values(), expected);
    }
}

TEST_F(ConfigurationTest, BoundsTheStartByTheDayOfTheClock) {
    clean.calculationStartDate = berlin(5, 5);
    const TimeBankSettings& settings = insertSettings(clean);
    repair(now - 9 * day);
    EXPECT_EQ(settings.calculationStartDate(), berlin(3, 4));
    EXPECT_EQ(settings.modifiedAt(), now - 9 * day);
}

TEST_F(ConfigurationTest, KeepsOneScheduleADay) {
    insertSettings(clean);
    insertSchedule(berlin(3, 2, 8), 5, 1, 1);
    const WorkSchedule& latest = insertSchedule(berlin(3, 2, 17), 6, 1, 2);
    const WorkSchedule& createdLast = insertSchedule(berlin(3, 3), 5, 3, 3);
    insertSchedule(berlin(3, 3, 1), 5, 2, 4);
    insertSchedule(berlin(3, 4), 5, 1, 5);
    const WorkSchedule& greatest = insertSchedule(berlin(3, 4), 5, 1, 6);
    repair();
    EXPECT_EQ(context->fetch<WorkSchedule>().size(), 3u);
    EXPECT_TRUE(latest.isAlive() && createdLast.isAlive() && greatest.isAlive());
    EXPECT_EQ(latest.effectiveFrom(), berlin(3, 2));
    EXPECT_EQ(latest.modifiedAt(), Instant{6});
}

TEST_F(ConfigurationTest, RepairsScheduleTimesBeforeChoosing) {
    insertSettings(clean);
    WorkSchedule& ahead = insertSchedule(berlin(3, 2), 0, 0, 1);
    ahead.setModifiedAt(now + 600);
    ahead.setCreatedAt(now + 700);
    WorkSchedule& skewed = insertSchedule(berlin(3, 2), 0, 0, 2);
    skewed.setModifiedAt(now + 200);
    repair();
    EXPECT_FALSE(ahead.isAlive());
    EXPECT_TRUE(skewed.isAlive());
    WorkScheduleValues bad = skewed.values();
    bad.effectiveFrom = berlin(3, 3, 7);
    bad.fridayMinutes = 5000;
    bad.createdAt = now + 999;
    const WorkSchedule& other = context->insert(std::make_unique<WorkSchedule>(bad));
    repair(now + 1);
    EXPECT_EQ(other.weekdayMinutes()[4], 1440);
    EXPECT_EQ(other.effectiveFrom(), berlin(3, 3));
    EXPECT_EQ(other.modifiedAt(), now + 1);
    EXPECT_EQ(other.createdAt(), now + 200);
}

TEST_F(ConfigurationTest, LooksAtSchedulesAgainInAnotherZoneAndAfterTheClockWentBack) {
    WorkSchedule& schedule = insertSchedule(berlin(3, 2), 1, 1, 1);
    schedule.setModifiedAt(now + 200);
    context->save();
    for (int i = 0; i < 3; ++i) { // two passes that save: one looks and notes, one keeps the note
        insertSettings(clean);
        repair();
    }
    const Revision saved = context->revision();
    repair(now - 50);
    EXPECT_EQ(context->revision(), saved);
    repair(now - 200);
    EXPECT_EQ(schedule.modifiedAt(), now - 200);
    calendar = calendarIn("Asia/Tokyo");
    repair();
    EXPECT_EQ(schedule.effectiveFrom(), calendar.startOfDay(berlin(3, 2)));
}

TEST_F(ConfigurationTest, RunsEveryRepairAndLeavesSavingToTheCaller) {
    clean.hasCompletedOnboarding = true;
    insertSettings(clean);
    const BalanceAdjustment& change = insertChange(now, 70'000);
    DataStoreMaintenance::reconcileData(*context, calendar, now, false);
    EXPECT_EQ(change.minutes(), 60'000);
    EXPECT_EQ(context->fetch<BalanceAdjustment>().size(), 2u); // with the marker
    EXPECT_TRUE(makeContext()->fetch<TimeBankSettings>().empty());
}

TEST_F(ConfigurationTest, ErasesEverything) {
    insertSettings(clean);
    insertSchedule(now, 1, 1, 1);
    insertChange(now, 1);
    context->insert(WorkEntry::create(clock));
    context->save();
    DataStoreMaintenance::eraseAll(*context);
    const auto fresh = makeContext();
    EXPECT_TRUE(fresh->fetch<TimeBankSettings>().empty());
    EXPECT_TRUE(fresh->fetch<WorkSchedule>().empty());
    EXPECT_TRUE(fresh->fetch<BalanceAdjustment>().empty());
    EXPECT_TRUE(fresh->fetch<WorkEntry>().empty());
    EXPECT_FALSE(StorePreparation::prepare(*context).hasCompletedOnboarding());
}

TEST_F(ConfigurationTest, CompletesSetup) {
    TimeBankSettings& settings = StorePreparation::prepare(*context);
    EXPECT_FALSE(settings.hasCompletedOnboarding());
    clock.advance(2 * day);
    // A marker that arrived earlier leaves the migration nothing to save.
    insertChange(now, 0, ManualLedgerMigration::adjustmentID());
    context->save();
    StorePreparation::completeOnboarding(*context, settings);
    const auto fresh = makeContext();
    const auto stored = fresh->fetch<TimeBankSettings>();
    ASSERT_EQ(stored.size(), 1u);
    EXPECT_TRUE(stored[0]->hasCompletedOnboarding());
    EXPECT_EQ(stored[0]->calculationStartDate(), berlin(3, 6));
    EXPECT_EQ(stored[0]->weekdayMinutes(), WeekdayMinutes{});
    EXPECT_EQ(stored[0]->modifiedAt(), now + 2 * day);
}

} // namespace

} // namespace quillmere::test
