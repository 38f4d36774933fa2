#include "Quillmere/widget/WidgetRefreshObserverViewModel.h"
#include "QuillmereKit/maintenance/StorePreparation.h"
#include "tests/Quillmere/dashboard/ManualCountdown.h"
#include "tests/Quillmere/dashboard/TimeBankFixture.h"
#include "tests/Quillmere/widget/CountingWidgetCenter.h"

#include <QtTest/QTest>

#include <functional>
#include <future>
#include <optional>
#include <vector>

namespace quillmere {

namespace {

using std::chrono::milliseconds;

class WidgetRefreshObserverTest : public TimeBankFixture {
protected:
    WidgetRefreshObserverTest() {
        setUp();
        StorePreparation::prepare(session().context());
    }

    /// The observer of a window that has just become active.
    void appear() {
        auto debounce = std::make_unique<ManualCountdown>();
        debounce_ = debounce.get();
        model_.emplace(session(), appState_,
                       WidgetRefreshObserverViewModel::Services{log_, {preferences_, center_}},
                       std::move(debounce));
        model_->setActive(true);
    }

    /// The same long afterwards, with its first snapshot out.
    void open() {
        loadHistory();
        appear();
        pass(milliseconds(350));
        EXPECT_EQ(center_.reloads, 1);
        pass(milliseconds(1000));
        center_.reloads = 0;
    }

    void pass(milliseconds time) {
        clock_.set(clock_.now() + static_cast<double>(time.count()) / 1000);
        debounce_->advance(time);
    }

    WidgetSnapshot published() { return WidgetSnapshotStore::load(preferences_, clock_); }

    CountingWidgetCenter center_;
    ManualCountdown* debounce_ = nullptr;
    std::optional<WidgetRefreshObserverViewModel> model_;
};

} // namespace

TEST_F(WidgetRefreshObserverTest, PublishesOnceAfterABurstOfChanges) {
    open();
    for (int i = 0; i < 3; ++i) {
        pass(milliseconds(100));
        record(10, -60);
    }
    pass(milliseconds(349));
    EXPECT_EQ(center_.reloads, 0);
    pass(milliseconds(1));
    EXPECT_EQ(center_.reloads, 1);
    EXPECT_EQ(published().balanceSeconds, 1800);
    EXPECT_EQ(published().updatedAt, clock_.now());
    pass(milliseconds(10'000));
    EXPECT_EQ(center_.reloads, 1);
}

TEST_F(WidgetRefreshObserverTest, LooksAtTheVersionsOfChangesAndSettings) {
    BalanceAdjustment& change = record(10, 0);
    open();
    TimeBankSettings& settings = *session().settingsRecord();
    const struct {
        const char* name;
        std::function<void()> edit;
        int published;
    } rows[] = {
        {"a note alone", [&] { change.setNote("Dentist"); }, 0},
        {"a later version", [&] { change.setModifiedAt(now + 1); }, 1},
        {"an earlier version", [&] { change.setModifiedAt(now - 1); }, 1},
        {"a setting alone", [&] { settings.setStartingBalanceMinutes(60); }, 0},
        {"later settings", [&] { settings.setModifiedAt(now + 1); }, 1},
        {"another change", [&] { record(20, 0); }, 1},
        {"a deletion", [&] { session().context().remove(change); }, 1},
    };
    for (const auto& row : rows) {
        center_.reloads = 0;
        row.edit();
        session().context().save();
        pass(milliseconds(1000));
        EXPECT_EQ(center_.reloads, row.published) << row.name;
    }
    EXPECT_EQ(published().balanceSeconds, (60 + 20) * 60);
}

TEST_F(WidgetRefreshObserverTest, RestsInTheBackground) {
    open();
    record(10, 0);
    model_->setActive(false);
    record(20, 0);
    pass(milliseconds(1000));
    EXPECT_EQ(center_.reloads, 0);
    model_->setActive(true);
    pass(milliseconds(350));
    EXPECT_EQ(center_.reloads, 1);
    EXPECT_EQ(published().balanceSeconds, 1800);

    model_->setActive(false);
    model_->setActive(true);
    pass(milliseconds(350));
    EXPECT_EQ(center_.reloads, 1) << "the last time is less than half a second ago";
}

TEST_F(WidgetRefreshObserverTest, WaitsForTheHistory) {
    record(10, 0);
    appear();
    pass(milliseconds(1000));
    EXPECT_EQ(center_.reloads, 0);
    loadHistory();
    pass(milliseconds(350));
    EXPECT_EQ(center_.reloads, 1);
}

TEST_F(WidgetRefreshObserverTest, FollowsTheDayWhileItsWindowIsActive) {
    record(10, 0);
    open();
    EXPECT_EQ(published().todayWorkedSeconds, 600);
    clock_.set(now + day);
    time_.check();
    pass(milliseconds(350));
    EXPECT_EQ(center_.reloads, 1);
    EXPECT_EQ(published().todayWorkedSeconds, 0);
    EXPECT_EQ(published().balanceSeconds, 600);
    model_->setActive(false);
    clock_.set(now + 2 * day);
    time_.check();
    pass(milliseconds(350));
    EXPECT_EQ(center_.reloads, 1);
}

TEST_F(WidgetRefreshObserverTest, LeavesThePublishedSnapshotWhenTheStoreFails) {
    BalanceAdjustment& change = record(10, 0);
    open();
    const WidgetSnapshot before = published();
    change.setMinutes(99'999); // to be repaired, which cannot be saved
    change.setModifiedAt(now + 1);
    session().context().save();
    lockStore();
    pass(milliseconds(350));
    EXPECT_EQ(published(), before);
    EXPECT_EQ(center_.reloads, 0);
    EXPECT_FALSE(session().context().hasChanges());
    EXPECT_EQ(change.minutes(), 99'999);
    EXPECT_FALSE(appState_.hasIssue());
    const std::vector<platform::MemoryLogSink::Entry> logged{
        {"dev.vantor.quillmere", "WidgetRefresh", platform::LogLevel::error,
         "Automatic widget refresh failed: <private>"}};
    EXPECT_EQ(log_.entries(), logged);

    unlockStore();
    pass(milliseconds(1000));
    EXPECT_EQ(center_.reloads, 0) << "the next change tries again, not the clock";
    record(20, 0);
    pass(milliseconds(350));
    EXPECT_EQ(center_.reloads, 1);
    EXPECT_EQ(published().balanceSeconds, (60'000 + 20) * 60);
}

TEST_F(WidgetRefreshObserverTest, WaitsWhileLongWorkWrites) {
    open();
    std::promise<void> end;
    appState_.work()->start(
        BackgroundWork::Kind::writing, QStringLiteral("Writing…"),
        [ended = end.get_future().share()] { ended.wait(); }, [](const std::exception*) {});
    record(10, 0);
    pass(milliseconds(1000));
    EXPECT_EQ(center_.reloads, 0);
    end.set_value();
    ASSERT_TRUE(QTest::qWaitFor([this] { return !appState_.work()->isRunning(); }, 30'000));
    pass(milliseconds(350));
    EXPECT_EQ(center_.reloads, 1);
    EXPECT_EQ(published().balanceSeconds, 600);
}

} // namespace quillmere
