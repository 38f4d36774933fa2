#include "Quillmere/menubar/MenuBarLabelViewModel.h"

#include "Platform/log/MemoryLogSink.h"
#include "Platform/preferences/MemoryPreferences.h"
#include "Quillmere/shell/AppStorageController.h"
#include "Quillmere/shell/PreferencesFollower.h"
#include "Quillmere/shell/TimeFollower.h"
#include "tests/Quillmere/shell/FakeStoreOpener.h"

#include <QtTest/QSignalSpy>
#include <QtTest/QTest>

#include <gtest/gtest.h>

#include <optional>

namespace quillmere {
namespace {

class MenuBarLabelViewModelTest : public testing::Test {
protected:
    static constexpr platform::Instant now{1795360200};

    MenuBarLabelViewModel& start() {
        storage_.emplace(container_, container_.make(), time_);
        return model_.emplace(*storage_, follower_);
    }

    void record(std::int64_t minutes, double secondsFromNow) {
        auto& context = storage_->session()->context();
        context.insert(std::make_unique<BalanceAdjustment>(
            platform::Uuid::random(), now + secondsFromNow, minutes, "",
            BalanceAdjustmentKind::manual, now, now));
        context.save();
    }

    std::string balance() { return model_->label().balance.toStdString(); }

    platform::ManualClock clock_{now};
    TimeFollower time_{clock_};
    platform::MemoryPreferences preferences_;
    PreferencesFollower follower_{preferences_};
    FakeStoreOpener opener_;
    platform::MemoryLogSink log_;
    AppModelContainer container_{opener_, log_};
    std::optional<AppStorageController> storage_;
    std::optional<MenuBarLabelViewModel> model_;
};

TEST_F(MenuBarLabelViewModelTest, TellsTheBalanceOfThisMoment) {
    const MenuBarLabel& label = start().label();
    EXPECT_EQ(balance(), "+0:00") << "nothing is set up yet";
    auto& session = *storage_->session();
    ASSERT_TRUE(QTest::qWaitFor(
        [&] { return session.adjustments().state() != platform::store::LiveState::loading; }));
    record(765, -1);
    EXPECT_EQ(balance(), "+12:45");
    record(-900, 60);
    EXPECT_EQ(balance(), "+12:45") << "the other change is not due";
    clock_.set(now + 60);
    time_.check();
    EXPECT_EQ(balance(), "\u22122:15");
    EXPECT_EQ(label.toolTip().toStdString(), "Quillmere time bank: minus 2 hours, 15 minutes");
    EXPECT_EQ(label.menuTitle().toStdString(), "Available flex time: \u22122:15");
}

// FakeStoreOpener refuses to open a store while the one before is still open.
TEST_F(MenuBarLabelViewModelTest, SaysWhenThereIsNoStoreAndLetsGoOfOneBeforeItIsOpenedAgain) {
    opener_.failing = {"cloud"};
    const MenuBarLabel& label = start().label();
    opener_.failing = {};
    storage_->retryICloud();
    EXPECT_EQ(label.toolTip().toStdString(), "Quillmere unavailable");
    EXPECT_EQ(label.menuTitle().toStdString(), "Quillmere unavailable");
    EXPECT_TRUE(QTest::qWaitFor([&] { return label.isAvailable; }, 30'000));
    EXPECT_EQ(storage_->mode(), PersistenceMode::iCloud);
    EXPECT_EQ(balance(), "+0:00");
}

TEST_F(MenuBarLabelViewModelTest, BringsTheMainWindowUpAfterItHasAppeared) {
    MenuBarLabelViewModel& model = start();
    const QSignalSpy requests(&model, &MenuBarLabelViewModel::mainWindowRequested);
    model.appear();
    model.appear();
    EXPECT_EQ(requests.count(), 0) << "not at once";
    EXPECT_TRUE(QTest::qWaitFor([&] { return requests.count() > 0; }, 30'000));
}

} // namespace
} // namespace quillmere
