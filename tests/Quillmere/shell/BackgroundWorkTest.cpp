#include "Quillmere/shell/BackgroundWork.h"

#include <QtCore/QSemaphore>
#include <QtTest/QTest>

#include <gtest/gtest.h>

#include <stdexcept>
#include <string>

namespace quillmere {

namespace {

using Kind = BackgroundWork::Kind;

class BackgroundWorkTest : public testing::TestWithParam<Kind> {
protected:
    void TearDown() override { gate_.release(); }

    void start(Kind kind, std::function<void()> work) {
        work_.start(kind, "Working…", std::move(work), [this](const std::exception* problem) {
            outcome_ += problem != nullptr ? problem->what() : "done";
        });
    }

    std::string outcome() {
        EXPECT_TRUE(QTest::qWaitFor([this] { return !work_.isRunning(); }, 30'000));
        return outcome_;
    }

    QSemaphore gate_;
    BackgroundWork work_;
    std::string outcome_;
};

} // namespace

TEST_P(BackgroundWorkTest, IsShownWhileItLastsAndHoldsInputBackWhenItWrites) {
    const bool writes = GetParam() == Kind::writing;
    start(GetParam(), [this] { gate_.acquire(); });
    EXPECT_EQ(work_.isHoldingInput(), writes);
    EXPECT_FALSE(work_.isShown());
    ASSERT_TRUE(QTest::qWaitFor([this] { return work_.isShown(); }, 30'000));
    EXPECT_EQ(outcome_, "");
    gate_.release();
    EXPECT_EQ(outcome(), "done");
    EXPECT_FALSE(work_.isShown());
    EXPECT_FALSE(work_.isHoldingInput());
}

INSTANTIATE_TEST_SUITE_P(Kinds, BackgroundWorkTest, testing::Values(Kind::reading, Kind::writing));

TEST_F(BackgroundWorkTest, HandsOverWhatTheWorkHasThrownAndGoesOnWithWhatWaits) {
    start(Kind::reading, [this] { gate_.acquire(); });
    start(Kind::writing, [] { throw std::runtime_error(", full, "); });
    EXPECT_TRUE(work_.isHoldingInput()) << "for what is to come";
    start(Kind::reading, [] {});
    gate_.release();
    EXPECT_EQ(outcome(), "done, full, done");
    EXPECT_FALSE(work_.isHoldingInput());
}

} // namespace quillmere
