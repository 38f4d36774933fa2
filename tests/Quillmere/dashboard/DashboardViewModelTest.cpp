#include "Quillmere/dashboard/DashboardViewModel.h"

#include "QuillmereKit/records/AppConstants.h"
#include "tests/Quillmere/dashboard/ManualCountdown.h"
#include "tests/Quillmere/dashboard/TimeBankFixture.h"

#include <QtTest/QSignalSpy>

#include <stdlib.h>

namespace quillmere {

namespace {

class DashboardViewModelTest : public TimeBankFixture {
protected:
    DashboardViewModel& model() {
        if (!model_) {
            model_ = std::make_unique<DashboardViewModel>(session(), appState_, preferences_,
                                                          std::make_unique<ManualCountdown>());
        }
        return *model_;
    }

    LedgerTransaction recent(int row) {
        const RecentActivityModel& items = *model().recentItems();
        return items.data(items.index(row), RecentActivityModel::TransactionRole)
            .value<LedgerTransaction>();
    }

    /// Moves the clock and lets the window look at it, as its timers do.
    void moveClock(platform::Instant instant) {
        clock_.set(instant);
        time_.check();
    }

    void TearDown() override { model_.reset(); }

private:
    std::unique_ptr<DashboardViewModel> model_;
};

} // namespace

TEST_F(DashboardViewModelTest, ShowsADefaultTimeBankWithoutAnyRecord) {
    model();
    loadHistory();
    EXPECT_EQ(model().summary().text, "+0:00");
    EXPECT_EQ(model().summary().todayText, "+0:00 today");
    EXPECT_EQ(model().trend(), QList<double>(30, 0));
    EXPECT_FALSE(model().hasActivity());
    EXPECT_TRUE(session().context().fetch<TimeBankSettings>().empty());
}

TEST_F(DashboardViewModelTest, KnowsTheBalanceAndNothingElseWhileTheHistoryIsRead) {
    setUp(120);
    record(30, -day);
    record(-45, -hour);
    record(60, hour);
    EXPECT_EQ(model().summary().text, "+1:45");
    EXPECT_FALSE(model().summary().isTodayKnown);
    EXPECT_TRUE(model().trend().isEmpty());
    EXPECT_FALSE(model().hasActivity());
    QSignalSpy moved(&model(), &DashboardViewModel::trendChanged);
    loadHistory();
    EXPECT_EQ(moved.count(), 1);
    EXPECT_EQ(model().summary().text, "+1:45");
    EXPECT_EQ(model().summary().todayText, "+0:15 today");
    EXPECT_EQ(model().trend().last(), 105 * minute);
    EXPECT_TRUE(model().hasActivity());
}

TEST_F(DashboardViewModelTest, FollowsRecordsAndSettings) {
    TimeBankSettings& settings = setUp();
    loadHistory();
    model();
    BalanceAdjustment& change = record(-90, -hour, "Dentist");
    EXPECT_EQ(model().summary().text, "\u22121:30");
    EXPECT_TRUE(model().summary().isNegative);
    EXPECT_EQ(model().summary().spoken, "minus 1 hours, 30 minutes");
    EXPECT_EQ(model().trendSpoken(), "minus 1 hours, 30 minutes");
    EXPECT_EQ(recent(0).title, "Dentist");
    EXPECT_EQ(recent(0).amountText, "\u22121:30");
    EXPECT_EQ(recent(0).dateText.chopped(3), "Sun, Nov 22, 2:10");
    EXPECT_EQ(recent(0).accessibleName, "Dentist, minus 1 hours, 30 minutes");

    change.setNote("Doctor\nBring the card");
    settings.setStartingBalanceMinutes(600);
    session().context().save();
    EXPECT_EQ(recent(0).title, "Doctor Bring the card");
    EXPECT_EQ(recent(0).accessibleName, "Doctor\nBring the card, minus 1 hours, 30 minutes");
    EXPECT_EQ(model().summary().text, "+8:30");
    EXPECT_EQ(model().trend().first(), 600 * minute);

    session().context().remove(change);
    session().context().save();
    EXPECT_EQ(model().summary().text, "+10:00");
    EXPECT_FALSE(model().hasActivity());
}

TEST_F(DashboardViewModelTest, ListsTheThreeNewestButCountsEveryChange) {
    setUp();
    loadHistory();
    model();
    for (const int minutes : {10, 20, 0, 30, 40}) {
        record(minutes, -minutes * minute);
    }
    session().context().fetch<BalanceAdjustment>().front()->setMinutes(70);
    session().context().save();
    EXPECT_EQ(model().summary().text, "+2:40");
    ASSERT_EQ(model().recentItems()->rowCount(), 3);
    EXPECT_EQ(recent(0).amountText, "+1:10");
    EXPECT_EQ(recent(1).amountText, "+0:20");
    EXPECT_EQ(recent(2).amountText, "+0:30");
}

TEST_F(DashboardViewModelTest, MovesToTheNewDayAtMidnight) {
    setUp();
    record(60, 0);
    loadHistory();
    EXPECT_EQ(model().summary().todayText, "+1:00 today");
    EXPECT_EQ(model().trend().at(28), 0);
    moveClock(now + 9 * hour);
    EXPECT_EQ(model().summary().todayText, "+0:00 today");
    EXPECT_EQ(model().trend().at(28), 60 * minute);
    EXPECT_EQ(model().summary().text, "+1:00");
}

TEST_F(DashboardViewModelTest, MovesWithTheTimeZone) {
    setUp();
    record(60, -15 * hour);
    loadHistory();
    EXPECT_EQ(model().summary().todayText, "+1:00 today");
    EXPECT_EQ(recent(0).dateText.chopped(3), "Sun, Nov 22, 12:10");
    setenv("TZ", "America/New_York", 1);
    time_.check();
    EXPECT_EQ(model().summary().todayText, "+0:00 today");
    EXPECT_EQ(recent(0).dateText.chopped(3), "Sat, Nov 21, 7:10");
    setenv("TZ", "UTC", 1);
}

TEST_F(DashboardViewModelTest, TakesInAChangeWhenItsMomentComes) {
    setUp();
    loadHistory();
    record(30, hour);
    record(60, 2 * hour);
    QSignalSpy moved(&model(), &DashboardViewModel::summaryChanged);
    EXPECT_EQ(model().summary().text, "+0:00");
    EXPECT_EQ(model().summary().todayText, "+1:30 today");
    // The timer waits for the nearer of the two, by the clock it was given.
    for (const char* text : {"+0:30", "+1:30"}) {
        clock_.set(now + (text == std::string("+0:30") ? hour : 2 * hour) - 0.01);
        time_.check();
        moved.clear();
        clock_.advance(0.01);
        ASSERT_TRUE(moved.wait(20'000));
        EXPECT_EQ(model().summary().text, text);
        EXPECT_EQ(model().trend().last(), model().summary().seconds);
    }
}

TEST_F(DashboardViewModelTest, TakesTheStoredRangeAndAMonthForAnyOther) {
    struct Case {
        std::optional<double> stored;
        int days;
        int index;
    };
    for (const Case& one : {Case{{}, 30, 2}, Case{7, 7, 0}, Case{14, 14, 1}, Case{30, 30, 2},
                            Case{90, 90, 3}, Case{45, 30, 2}, Case{-7, 30, 2}}) {
        SCOPED_TRACE(one.stored.value_or(0));
        platform::MemoryPreferences preferences;
        if (one.stored) {
            preferences.setNumber("overview.balanceTrendRangeDays", *one.stored);
        }
        loadHistory();
        const DashboardViewModel model(session(), appState_, preferences,
                                       std::make_unique<ManualCountdown>());
        EXPECT_EQ(model.trendRangeDays(), one.days);
        EXPECT_EQ(model.trendRangeIndex(), one.index);
        EXPECT_EQ(model.trend().size(), one.days);
    }
}

TEST_F(DashboardViewModelTest, RemembersTheChosenRange) {
    loadHistory();
    model().chooseTrendRange(3);
    EXPECT_EQ(model().trend().size(), 90);
    EXPECT_EQ(preferences_.number("overview.balanceTrendRangeDays"), 90);
    preferences_.setFailing(true);
    model().chooseTrendRange(0);
    EXPECT_EQ(model().trend().size(), 7);
}

} // namespace quillmere
