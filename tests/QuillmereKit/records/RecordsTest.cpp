#include "QuillmereKit/calculation/TimeBankCalculator.h"
#include "QuillmereKit/records/AppConstants.h"
#include "QuillmereKit/records/LedgerRow.h"
#include "QuillmereKit/records/LedgerRowText.h"
#include "QuillmereKit/records/NoteValidation.h"
#include "QuillmereKit/records/RecordTimestampValidation.h"
#include "QuillmereKit/records/SettingsRow.h"
#include "QuillmereKit/records/TimeBankSettings.h"
#include "QuillmereKit/records/WorkEntry.h"
#include "QuillmereKit/records/WorkSchedule.h"
#include "tests/QuillmereKit/KitTest.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace quillmere::test {

namespace {

using Minutes = std::vector<std::int64_t>;

const platform::ManualClock clockAtNoon{berlin(3, 4, 12)};

TEST(Records, StartWithTheirInitialValues) {
    const auto change = BalanceAdjustment::create(clockAtNoon);
    EXPECT_EQ(change->minutes(), 0);
    EXPECT_EQ(change->kindRawValue(), "manual");
    EXPECT_EQ(change->date(), clockAtNoon.now());
    EXPECT_NE(change->id(), BalanceAdjustment::create(clockAtNoon)->id());
    EXPECT_TRUE(WorkEntry::create(clockAtNoon)->isRunning());
    EXPECT_EQ(WorkSchedule::create(clockAtNoon)->weekdayMinutes(), WeekdayPlan::defaultWeek);
    const auto settings = TimeBankSettings::create(clockAtNoon);
    EXPECT_EQ(settings->weekdayMinutes(), (WeekdayMinutes{480, 480, 480, 480, 480, 0, 0}));
    EXPECT_EQ(settings->quickActionMinutes(), (QuickActionConfiguration::Presets{15, 30, 60, 120}));
    EXPECT_EQ(settings->startingBalanceMinutes(), 0);
    EXPECT_EQ(settings->customAdjustmentCategoriesRawValue(), "[]");
    EXPECT_FALSE(settings->hasCompletedOnboarding());
    TimeBankSettingsValues fresh;
    fresh.id = settings->id();
    fresh.calculationStartDate = fresh.modifiedAt = clockAtNoon.now();
    EXPECT_EQ(settings->values(), fresh);
}

TEST(TimeBankSettings, PadsAShortWeekAtCreationAndEmptiesItOnAssignment) {
    TimeBankSettings settings(uuid(1), {0}, 70'000, Minutes{600, 2000}, Minutes{1}, "other,bogus",
                              R"(["Gym","gym"])", true, {0});
    EXPECT_EQ(settings.weekdayMinutes(), (WeekdayMinutes{600, 1440, 480, 480, 480, 0, 0}));
    EXPECT_EQ(settings.quickActionMinutes(), (QuickActionConfiguration::Presets{5, 30, 60, 120}));
    EXPECT_EQ(settings.startingBalanceMinutes(), 70'000);
    EXPECT_EQ(settings.visibleAdjustmentKindsRawValue(), "other");
    EXPECT_EQ(settings.customAdjustmentCategoriesRawValue(), R"(["Gym"])");
    settings.setWeekdayMinutes(Minutes{600, -30});
    EXPECT_EQ(settings.weekdayMinutes(), (WeekdayMinutes{600, 0, 0, 0, 0, 0, 0}));
    const WorkSchedule schedule(uuid(1), {0}, Minutes{1, 2, 3, 4, 5, 6, 1500, 8}, {0}, {0});
    EXPECT_EQ(schedule.weekdayMinutes(), (WeekdayMinutes{1, 2, 3, 4, 5, 6, 1440}));
}

TEST(WeekdayPlan, PlansTheDayOfTheCalendarsZoneAndClampsWhatIsStored) {
    WorkScheduleValues values;
    values.mondayMinutes = 9999;
    values.sundayMinutes = -5;
    const WorkSchedule schedule(values);
    EXPECT_EQ(schedule.weekdayMinutes()[0], 9999);
    const Instant sundayEvening = berlin(3, 1, 23.5);
    EXPECT_EQ(schedule.scheduledMinutes(sundayEvening, calendarIn("Europe/Berlin")), 0);
    EXPECT_EQ(schedule.scheduledMinutes(sundayEvening, calendarIn("Asia/Tokyo")), 1440);
    std::string indices;
    for (int dayOfMonth = 2; dayOfMonth <= 8; ++dayOfMonth) {
        indices += std::to_string(
            WeekdayPlan::weekdayIndex(berlin(3, dayOfMonth), calendarIn("Europe/Berlin")));
    }
    EXPECT_EQ(indices, "0123456");
}

TEST(WorkEntry, CountsWorkWithoutBreaks) {
    const struct {
        const char* name;
        std::int64_t breakMinutes;
        double expected;
    } rows[] = {
        {"with a break", 30, 9000},
        {"a break longer than the work", 240, 0},
        {"a negative break", -30, 10'800},
        {"an endless break", std::numeric_limits<std::int64_t>::max(), 0},
    };
    const Instant now = clockAtNoon.now();
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        const WorkEntry running(uuid(1), now - 3 * hour, std::nullopt, row.breakMinutes, "", now,
                                now);
        EXPECT_EQ(running.workedSeconds(now), row.expected);
        const WorkEntry ended(uuid(1), now - 3 * hour, now, row.breakMinutes, "", now, now);
        EXPECT_EQ(ended.workedSeconds(now + day), row.expected);
    }
}

TEST(BalanceAdjustment, ResolvesItsCategory) {
    auto change = BalanceAdjustment::create(clockAtNoon);
    change->setKind(BalanceAdjustmentKind::holiday);
    EXPECT_EQ(change->kind(), BalanceAdjustmentKind::holiday);
    change->setKindRawValue("custom:IEd5bQ==");
    EXPECT_EQ(change->kind(), BalanceAdjustmentKind::manual);
    EXPECT_EQ(change->category().rawValue, "custom:R3lt");
    change->setKindRawValue("unknown");
    EXPECT_EQ(change->category(), AdjustmentCategoryOption::builtIn(BalanceAdjustmentKind::manual));
}

TEST(NoteValidation, CutsAtCharactersAsPeopleCountThem) {
    const std::string letters(300, 'x');
    EXPECT_EQ(NoteValidation::normalized("  " + letters + "\n"), letters.substr(0, 280));
    EXPECT_EQ(NoteValidation::normalized(" \t\n\u00A0"), "");
    EXPECT_EQ(NoteValidation::normalized(letters.substr(0, 279) + " y"),
              letters.substr(0, 279) + " ");
    EXPECT_EQ(NoteValidation::limited(" " + letters), " " + letters.substr(0, 279));
    std::string accented;
    for (int i = 0; i < 281; ++i) {
        accented += "e\u0301";
    }
    EXPECT_EQ(NoteValidation::normalized(accented).size(), 280u * 3);
}

TEST(RecordTimestampValidation, AllowsFiveMinutesOfSkew) {
    using namespace RecordTimestampValidation;
    const Instant now = clockAtNoon.now();
    EXPECT_EQ(normalizedModifiedAt(now + 300, now), now + 300);
    EXPECT_EQ(normalizedModifiedAt(now + 300.5, now), now);
    EXPECT_EQ(normalizedModifiedAt(now - day, now), now - day);
    EXPECT_EQ(normalizedCreatedAt(now + 1, now), now);
    EXPECT_EQ(normalizedCreatedAt(now - 1, now), now - 1);
}

LedgerRow row(Instant date, std::int64_t minutes, const Uuid& id, std::string note = "") {
    return LedgerRow::make(platform::store::RowRef{1},
                           {id, date, minutes, std::move(note), "manual", date, date})
        .value();
}

TEST(LedgerRow, OrdersNewestFirstThenByIdentifier) {
    std::vector rows{row({1}, 1, uuid(9)), row({2}, 1, uuid(1)), row({2}, 1, uuid(2)),
                     row({std::nan("")}, 1, uuid(3))};
    std::ranges::sort(rows, [](const LedgerRow& a, const LedgerRow& b) { return a < b; });
    std::string order;
    for (const LedgerRow& sorted : rows) {
        order += std::to_string(sorted.id.bytes().back());
    }
    EXPECT_EQ(order, "3219");
    // No moment comes to a date that is not a number, for rows as for records.
    EXPECT_EQ(TimeBankCalculator::ledgerBalanceSeconds(rows, 0, clockAtNoon.now()), 180);
}

TEST(LedgerRow, ListsChangesButNotTheMarkerAndDiffersWithWhatIsShown) {
    EXPECT_TRUE(row({1}, -5, uuid(1)).isListed);
    EXPECT_FALSE(row({1}, 0, uuid(1)).isListed);
    EXPECT_FALSE(row({1}, 5, AppConstants::manualLedgerMigrationAdjustmentID()).isListed);
    EXPECT_EQ(row({1}, 5, uuid(1), "a"), row({1}, 5, uuid(1), "a"));
    EXPECT_NE(row({1}, 5, uuid(1), "a"), row({1}, 5, uuid(1), "b"));
    EXPECT_EQ(AppConstants::manualLedgerMigrationAdjustmentID().text(),
              "C4D2B7E9-0B4A-4C2A-9D6E-000000000001");
}

TEST(SettingsRow, PutsTheRecordThatARepairKeepsFirst) {
    const auto settings = [](bool completed, double modifiedAt, std::uint8_t id) {
        TimeBankSettingsValues values;
        values.id = uuid(id);
        values.modifiedAt = {modifiedAt};
        values.hasCompletedOnboarding = completed;
        return SettingsRow::make(platform::store::RowRef{id}, values).value();
    };
    EXPECT_LT(settings(true, 1, 1), settings(false, 9, 9));
    EXPECT_LT(settings(true, 2, 1), settings(true, 1, 9));
    EXPECT_LT(settings(true, 1, 2), settings(true, 1, 1));
    EXPECT_FALSE(settings(true, 1, 1) < settings(true, 1, 1));
}

TEST(LedgerRowText, NamesAChange) {
    const struct {
        const char* name;
        std::int64_t minutes;
        const char* note;
        const char* category;
        const char* title;
        const char* spoken;
    } rows[] = {
        {"the note", -60, "Dentist", "appointment", "Dentist", "Dentist, minus 1 hours, 0 minutes"},
        {"a category that takes time", -60, "", "personalErrands", "Personal errands",
         "Time subtracted, minus 1 hours, 0 minutes"},
        {"time added under it", 60, "", "personalErrands", "Time added",
         "Time added, plus 1 hours, 0 minutes"},
        {"a custom category", -1, "", "custom:R3lt", "Gym",
         "Time subtracted, minus 0 hours, 1 minutes"},
        {"a manual change", -1, "", "manual", "Time subtracted",
         "Time subtracted, minus 0 hours, 1 minutes"},
        {"a negative holiday", -1, "", "holiday", "Time subtracted",
         "Time subtracted, minus 0 hours, 1 minutes"},
    };
    for (const auto& expected : rows) {
        SCOPED_TRACE(expected.name);
        auto change = BalanceAdjustment::create(clockAtNoon);
        change->setMinutes(expected.minutes);
        change->setNote(expected.note);
        change->setKindRawValue(expected.category);
        EXPECT_EQ(LedgerRowText::title(*change), expected.title);
        EXPECT_EQ(LedgerRowText::accessibilityLabel(*change), expected.spoken);
    }
}

} // namespace

} // namespace quillmere::test
