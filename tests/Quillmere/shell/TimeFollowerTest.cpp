#include "Quillmere/shell/TimeFollower.h"

#include <QtTest/QSignalSpy>

#include <gtest/gtest.h>

#include <cstdlib>

namespace quillmere {
namespace {

constexpr platform::Instant halfPastEleven{1795390200}; // Sunday, 22 November 2026, 23:30 UTC
constexpr double minute = 60;

class TimeFollowerTest : public testing::Test {
protected:
    ~TimeFollowerTest() override { setenv("TZ", "UTC", 1); }

    int changesAfter(const std::function<void()>& happening) {
        QSignalSpy spy(&follower_, &TimeFollower::changed);
        happening();
        follower_.check();
        follower_.check();
        return static_cast<int>(spy.count());
    }

    platform::ManualClock clock_{halfPastEleven};
    TimeFollower follower_{clock_};
};

TEST_F(TimeFollowerTest, TellsOnceOfWhatMoved) {
    EXPECT_EQ(changesAfter([] {}), 0);
    EXPECT_EQ(changesAfter([this] { clock_.advance(0.5); }), 0) << "a clock that is being trimmed";
    EXPECT_EQ(changesAfter([this] { clock_.advance(30 * minute); }), 1) << "midnight";
    EXPECT_EQ(changesAfter([this] { clock_.advance(-10 * minute); }), 1) << "set back";
    EXPECT_EQ(changesAfter([this] { clock_.advance(5 * minute); }), 1) << "a suspend within a day";
    EXPECT_EQ(changesAfter([] { setenv("TZ", "Europe/Berlin", 1); }), 1) << "zone";
    EXPECT_EQ(follower_.current().timeZone().name(), "Europe/Berlin");
    EXPECT_EQ(follower_.current().civilDate(follower_.now()).day, 23);
}

TEST(InstantTimerTest, FiresFromTheEventLoopOnceTheInstantHasCome) {
    const platform::SystemClock clock;
    InstantTimer timer(clock);
    QSignalSpy fired(&timer, &InstantTimer::fired);

    timer.schedule(clock.now() + 0.02);
    EXPECT_EQ(fired.count(), 0);
    ASSERT_TRUE(fired.wait(30'000));
    EXPECT_FALSE(timer.isScheduled());

    timer.schedule(clock.now() - 3600);
    EXPECT_EQ(fired.count(), 1) << "not before the event loop runs";
    ASSERT_TRUE(fired.wait(30'000));
    EXPECT_EQ(fired.count(), 2);
}

TEST(InstantTimerTest, AsksItsClockBeforeItFires) {
    platform::ManualClock clock(halfPastEleven);
    InstantTimer timer(clock);
    QSignalSpy fired(&timer, &InstantTimer::fired);
    timer.schedule(halfPastEleven + 60);
    clock.advance(59);
    timer.check();
    EXPECT_EQ(fired.count(), 0);
    clock.advance(1);
    timer.check();
    EXPECT_EQ(fired.count(), 1);
    timer.check();
    EXPECT_EQ(fired.count(), 1);
}

} // namespace
} // namespace quillmere
