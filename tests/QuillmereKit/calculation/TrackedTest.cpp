#include "QuillmereKit/calculation/TimeBankCalculator.h"
#include "QuillmereKit/calculation/TimeBankDateBounds.h"
#include "QuillmereKit/records/TimeBankSettings.h"
#include "QuillmereKit/records/WorkEntry.h"
#include "QuillmereKit/records/WorkSchedule.h"
#include "tests/QuillmereKit/KitTest.h"

#include <gmock/gmock.h>

#include <cmath>
#include <limits>

namespace quillmere::test {

namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

struct Worked {
    Instant start;
    std::optional<Instant> end;
    std::int64_t breakMinutes = 0;
};

/// Hours worked a day from 2 March to the day of `through`.
std::vector<double> hoursWorked(const std::vector<Worked>& worked, Instant through) {
    std::vector<std::unique_ptr<WorkEntry>> owned;
    std::vector<WorkEntry*> entries;
    for (const Worked& entry : worked) {
        owned.push_back(std::make_unique<WorkEntry>(Uuid::random(), entry.start, entry.end,
                                                    entry.breakMinutes, "", entry.start,
                                                    entry.start));
        entries.push_back(owned.back().get());
    }
    TimeBankSettingsValues values;
    values.calculationStartDate = berlin(3, 2, 15);
    std::vector<double> hours;
    for (const DayBalance& dayBalance : TimeBankCalculator::dayBalances(
             entries, {}, {}, TimeBankSettings(values), through, berlinCalendar)) {
        hours.push_back(dayBalance.workedSeconds / hour);
    }
    return hours;
}

TEST(TrackedDays, CountOverlappingWorkOnce) {
    const auto entry = [](double from, double to, std::int64_t breakMinutes = 0) {
        return Worked{berlin(3, 2, from), berlin(3, 2, to), breakMinutes};
    };
    const Instant evening = berlin(3, 2, 23);
    const struct {
        const char* name;
        std::vector<Worked> worked;
        double expected;
    } rows[] = {
        {"overlapping", {entry(8, 12), entry(10, 14)}, 6},
        {"the same twice, the break once", {entry(8, 16, 30), entry(8, 16, 30)}, 7.5},
        {"the same twice, the longer break", {entry(8, 16, 60), entry(8, 16, 30)}, 7},
        {"touching, both breaks", {entry(12, 16, 30), entry(8, 12, 30)}, 7},
        {"apart", {entry(8, 12, 30), entry(13, 16, 30)}, 6},
        {"contained", {entry(8, 16), entry(9, 10, 60)}, 7},
        {"breaks beyond the whole", {entry(8, 9, 60), entry(8, 9.5, 90)}, 0},
        {"ends before it starts", {entry(12, 8)}, 0},
        {"starts later than now", {entry(23.5, 23.9)}, 0},
        {"running until now", {{berlin(3, 2, 21), std::nullopt, 30}}, 1.5},
        {"running, the break longer than the work", {{berlin(3, 2, 21), std::nullopt, 180}}, 0},
        {"ends later than now", {entry(22, 23.9)}, 1},
        {"a negative break", {entry(8, 12, -30)}, 4},
        {"begins before all time",
         {{{-std::numeric_limits<double>::infinity()}, berlin(3, 2, 8), 30}},
         8},
        {"times that are none", {{{std::nan("")}, evening}, {berlin(3, 2), {{std::nan("")}}}}, 0},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        EXPECT_THAT(hoursWorked(row.worked, evening), ElementsAre(row.expected));
    }
}

TEST(TrackedDays, SpreadWorkAndItsBreaksOverMidnights) {
    EXPECT_THAT(hoursWorked({{berlin(3, 2, 22), berlin(3, 3, 2), 60}}, berlin(3, 3, 12)),
                ElementsAre(1.5, 1.5));
    EXPECT_THAT(hoursWorked({{berlin(3, 1, 12), berlin(3, 4, 6)}}, berlin(3, 3, 12)),
                ElementsAre(24, 12));
    // Ends with the day: nothing is left for the next one.
    EXPECT_THAT(hoursWorked({{berlin(3, 2, 20), berlin(3, 3)}}, berlin(3, 3)), ElementsAre(4, 0));
    EXPECT_THAT(hoursWorked({{berlin(2, 1, 8), berlin(2, 1, 9)}}, berlin(3, 2)), ElementsAre(0));
    EXPECT_THAT(hoursWorked({{berlin(3, 2, 8), berlin(3, 2, 9)}}, berlin(3, 1)), IsEmpty());
}

TEST(TrackedDays, KnowDaysOfOtherLengths) {
    EXPECT_EQ(hoursWorked({{berlin(3, 28, 12), berlin(3, 30, 12)}}, berlin(3, 31)).at(27), 23);
    EXPECT_EQ(hoursWorked({{berlin(10, 24, 12), berlin(10, 26, 12)}}, berlin(10, 27)).at(237), 25);
}

class ScheduleTest : public ::testing::Test {
protected:
    WorkSchedule* add(Instant effectiveFrom, std::int64_t minutes, Instant modifiedAt,
                      Instant createdAt, std::uint8_t id) {
        const std::vector<std::int64_t> week(7, minutes);
        owned_.push_back(
            std::make_unique<WorkSchedule>(uuid(id), effectiveFrom, week, createdAt, modifiedAt));
        schedules.push_back(owned_.back().get());
        return schedules.back();
    }

    [[nodiscard]] std::int64_t scheduled(Instant on) const {
        return TimeBankCalculator::scheduledMinutes(on, settings, schedules, berlinCalendar);
    }

    std::vector<WorkSchedule*> schedules;
    TimeBankSettings settings{[] {
        TimeBankSettingsValues values;
        values.calculationStartDate = berlin(2, 27);
        values.startingBalanceMinutes = 10;
        return values;
    }()};

private:
    std::vector<std::unique_ptr<WorkSchedule>> owned_;
};

TEST_F(ScheduleTest, TheLatestScheduleInEffectWins) {
    add(berlin(3, 1), 60, {5}, {1}, 1);
    add(berlin(3, 1, 17), 90, {6}, {1}, 1);
    add(berlin(3, 1), 30, {4}, {9}, 9);
    EXPECT_EQ(scheduled(berlin(3, 1, 8)), 90);
    EXPECT_EQ(scheduled(berlin(3, 20)), 90);
    EXPECT_EQ(scheduled(berlin(2, 27, 23)), 480);
    EXPECT_EQ(scheduled(berlin(2, 28)), 0);
    add(berlin(3, 10, 12), 5, {0}, {0}, 0);
    EXPECT_EQ(scheduled(berlin(3, 10)), 5);
    EXPECT_EQ(scheduled(berlin(3, 9)), 90);
    add(berlin(3, 1), 91, {6}, {2}, 0);
    EXPECT_EQ(scheduled(berlin(3, 2)), 91);
    add(berlin(3, 1), 92, {6}, {2}, 3);
    add(berlin(3, 1), 93, {6}, {2}, 3);
    EXPECT_EQ(scheduled(berlin(3, 2)), 92);
}

TEST_F(ScheduleTest, TheTrackedBalanceIsWorkAndChangesAgainstThePlan) {
    add(berlin(2, 28), 60, {1}, {1}, 1);
    WorkEntry entry(uuid(1), berlin(2, 27, 8), berlin(2, 27, 12), 0, "", {0}, {0});
    BalanceAdjustment change(uuid(2), berlin(2, 28, 23), 30, "", BalanceAdjustmentKind::manual, {0},
                             {0});
    BalanceAdjustment outside(uuid(3), berlin(2, 26), 1000, "", BalanceAdjustmentKind::manual, {0},
                              {0});
    const std::vector entries{&entry};
    const std::vector changes{&outside, &change};
    const double seconds = TimeBankCalculator::balanceSeconds(entries, changes, schedules, settings,
                                                              berlin(3, 1, 12), berlinCalendar);
    EXPECT_EQ(seconds / 60, 10 + (240 - 480) + (30 - 60) - 60);
    EXPECT_EQ(TimeBankCalculator::balanceSeconds(entries, changes, schedules, settings,
                                                 berlin(2, 26), berlinCalendar),
              600);
}

TEST(WorkedSeconds, SharesTheBreakOut) {
    const WorkEntry entry(uuid(1), berlin(3, 2, 8), berlin(3, 2, 12), 60, "", {0}, {0});
    const auto hoursDuring = [&](double from, double to, Instant asOf) {
        return TimeBankCalculator::workedSeconds(entry, {berlin(3, 2, from), berlin(3, 2, to)},
                                                 asOf) /
               hour;
    };
    EXPECT_EQ(hoursDuring(10, 20, berlin(3, 3)), 1.5);
    EXPECT_EQ(hoursDuring(0, 24, berlin(3, 2, 10)), 1);
    EXPECT_EQ(hoursDuring(12, 20, berlin(3, 3)), 0);
    EXPECT_EQ(hoursDuring(0, 24, berlin(3, 2, 8)), 0);
    EXPECT_EQ(hoursDuring(0, 24, berlin(3, 2, 8.5)), 0);
}

TEST(TimeBankDateBounds, KeepTheStartBetween2000AndToday) {
    const Instant earliest = berlin(1, 1, 0, 2000);
    EXPECT_EQ(TimeBankDateBounds::earliestCalculationDate(berlinCalendar), earliest);
    EXPECT_EQ(TimeBankDateBounds::earliestCalculationDate(calendarIn("Pacific/Kiritimati")),
              Instant{946684800 - 14 * hour});
    const auto start = [](Instant date) {
        return TimeBankDateBounds::normalizedCalculationStartDate(date, berlin(3, 4, 12),
                                                                  berlinCalendar);
    };
    EXPECT_EQ(start(berlin(6, 1, 0, 1995)), earliest);
    EXPECT_EQ(start({std::nan("")}), earliest);
    EXPECT_EQ(start(berlin(3, 2, 15)), berlin(3, 2));
    EXPECT_EQ(start(berlin(3, 4, 23)), berlin(3, 4));
    EXPECT_EQ(start(berlin(3, 9)), berlin(3, 4));
}

} // namespace

} // namespace quillmere::test
