#include "Quillmere/shell/AppStorageController.h"

#include "Platform/log/MemoryLogSink.h"
#include "Quillmere/shell/TimeFollower.h"
#include "tests/Quillmere/shell/FakeStoreOpener.h"

#include <QtTest/QSignalSpy>
#include <QtTest/QTest>

#include <gtest/gtest.h>

#include <optional>

namespace quillmere {
namespace {

class AppStorageControllerTest : public testing::Test {
protected:
    AppStorageController& start() {
        controller_.emplace(container_, container_.make(), time_);
        return *controller_;
    }

    bool retry() {
        std::optional<bool> answer;
        controller_->retryICloud([&answer](bool synchronised) { answer = synchronised; });
        EXPECT_TRUE(QTest::qWaitFor([&answer] { return answer.has_value(); }, 30'000));
        return answer.value_or(false);
    }

    platform::SystemClock clock_;
    TimeFollower time_{clock_};
    FakeStoreOpener opener_;
    platform::MemoryLogSink log_;
    AppModelContainer container_{opener_, log_};
    std::optional<AppStorageController> controller_;
};

TEST_F(AppStorageControllerTest, RetryLetsGoOfTheStoreBeforeItIsOpenedAgain) {
    opener_.failing = {"cloud"};
    AppStorageController& controller = start();
    const QPointer<StoreSession> session = controller.session();
    opener_.failing = {};

    QSignalSpy sessions(&controller, &AppStorageController::sessionChanged);
    controller.retryICloud();

    EXPECT_TRUE(controller.isRetryingICloud());
    EXPECT_EQ(controller.mode(), PersistenceMode::unavailable);
    EXPECT_EQ(controller.session(), nullptr);
    EXPECT_FALSE(session.isNull()) << "views of this turn of the event loop still hold it";

    ASSERT_TRUE(QTest::qWaitFor([&] { return !controller.isRetryingICloud(); }, 30'000));
    EXPECT_TRUE(session.isNull());
    EXPECT_EQ(sessions.count(), 2);
    EXPECT_EQ(controller.mode(), PersistenceMode::iCloud);
    EXPECT_NE(controller.session(), nullptr);
    EXPECT_FALSE(controller.didLastICloudRetryFail());
}

TEST_F(AppStorageControllerTest, SessionsReadTheirHistoryFromWhenTheyAreAsked) {
    opener_.failing = {"cloud"};
    controller_.emplace(container_, container_.make(), time_, StoreSession::Reading::whenAsked);
    QCoreApplication::processEvents();
    EXPECT_TRUE(controller_->session()->isLoading());
    controller_->readHistory();
    EXPECT_TRUE(QTest::qWaitFor([this] { return !controller_->session()->isLoading(); }, 30'000));

    opener_.failing = {};
    ASSERT_TRUE(retry());
    EXPECT_TRUE(QTest::qWaitFor([this] { return !controller_->session()->isLoading(); }, 30'000));
}

TEST_F(AppStorageControllerTest, FailedRetryOpensTheFallbackAnew) {
    opener_.failing = {"cloud", "local", "memory"};
    AppStorageController& controller = start();
    ASSERT_FALSE(controller.hasStore());
    opener_.failing = {"cloud"};

    EXPECT_FALSE(retry());
    EXPECT_EQ(controller.mode(), PersistenceMode::localOnly);
    EXPECT_TRUE(controller.didLastICloudRetryFail());

    opener_.failing = {};
    EXPECT_TRUE(retry());
    EXPECT_FALSE(controller.didLastICloudRetryFail());
}

TEST_F(AppStorageControllerTest, RetryWithoutEntitlementsOpensTheFallbackOnly) {
    opener_.cloudKit = false;
    start();
    opener_.attempts.clear();
    EXPECT_FALSE(retry());
    EXPECT_EQ(opener_.attempts, std::vector<std::string>{"local shared"});
}

TEST_F(AppStorageControllerTest, RetryIsAnsweredAtOnceWhenThereIsNothingToRetry) {
    AppStorageController& controller = start();
    StoreSession* session = controller.session();
    EXPECT_TRUE(retry());
    EXPECT_EQ(controller.session(), session);
    EXPECT_EQ(opener_.attempts.size(), 1U);
}

TEST_F(AppStorageControllerTest, SecondRetryDoesNotDisturbTheFirst) {
    opener_.failing = {"cloud"};
    AppStorageController& controller = start();
    controller.retryICloud();
    std::optional<bool> answer;
    controller.retryICloud([&answer](bool synchronised) { answer = synchronised; });
    EXPECT_EQ(answer, false);
    EXPECT_TRUE(controller.isRetryingICloud());
    ASSERT_TRUE(QTest::qWaitFor([&] { return !controller.isRetryingICloud(); }, 30'000));
    EXPECT_EQ(opener_.attempts.size(), 4U) << "two at launch and two of one retry";
}

} // namespace
} // namespace quillmere
