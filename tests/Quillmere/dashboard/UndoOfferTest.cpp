#include "Quillmere/dashboard/UndoOffer.h"

#include "Quillmere/shell/ContinuousCountdown.h"
#include "tests/Quillmere/dashboard/ManualCountdown.h"
#include "tests/Quillmere/dashboard/TimeBankFixture.h"

#include <QtTest/QSignalSpy>

namespace quillmere {

namespace {

using namespace std::chrono_literals;

class UndoOfferTest : public TimeBankFixture {
protected:
    std::size_t storedChanges() { return session().context().fetch<BalanceAdjustment>().size(); }

    ManualCountdown* countdown_ = new ManualCountdown;
    UndoOffer offer_{session(), appState_, std::unique_ptr<Countdown>(countdown_)};
};

} // namespace

TEST_F(UndoOfferTest, NamesWhatItUndoes) {
    offer_.offer(record(90, 0));
    EXPECT_EQ(offer_.title(), "Time added");
    EXPECT_EQ(offer_.amountText(), "+1:30");
    offer_.offer(record(-45, 0));
    EXPECT_EQ(offer_.title(), "Time subtracted");
    EXPECT_EQ(offer_.amountText(), "\u22120:45");
}

TEST_F(UndoOfferTest, GoesAfterEightSecondsOfTheNewestChange) {
    offer_.offer(record(60, 0));
    countdown_->advance(5s);
    offer_.offer(record(-45, 1));
    countdown_->advance(7999ms);
    EXPECT_TRUE(offer_.isOffered());
    EXPECT_EQ(offer_.transaction()->minutes(), -45);
    countdown_->advance(1ms);
    EXPECT_FALSE(offer_.isOffered());
    offer_.undo();
    EXPECT_EQ(storedChanges(), 2U);
}

TEST_F(UndoOfferTest, RemovesTheNewestChangeOnly) {
    offer_.offer(record(60, 0));
    offer_.offer(record(-45, 1));
    offer_.undo();
    offer_.undo();
    const auto left = session().context().fetch<BalanceAdjustment>();
    ASSERT_EQ(left.size(), 1U);
    EXPECT_EQ(left[0]->minutes(), 60);
    EXPECT_FALSE(session().context().hasChanges());
    EXPECT_FALSE(appState_.hasIssue());
}

TEST_F(UndoOfferTest, PutsTheChangeBackWhenItCannotBeRemoved) {
    loadHistory();
    offer_.offer(record(60, 0));
    lockStore();
    offer_.undo();
    EXPECT_FALSE(offer_.isOffered());
    EXPECT_EQ(storedChanges(), 1U);
    EXPECT_FALSE(session().context().hasChanges());
    EXPECT_EQ(session().adjustments().size(), 1U);
    EXPECT_EQ(issueTitle(), "Couldn't undo the change");
    EXPECT_EQ(appState_.issue().message,
              "The time-bank change is still saved. Please try deleting it from Activity.");
}

TEST_F(UndoOfferTest, FollowsTheRecordWhenOthersChangeOrDeleteIt) {
    loadHistory();
    BalanceAdjustment& change = record(60, 0);
    offer_.offer(change);
    change.setMinutes(-30);
    session().context().save();
    EXPECT_EQ(offer_.amountText(), "\u22120:30");
    session().context().remove(change);
    session().context().save();
    EXPECT_FALSE(offer_.isOffered());
    EXPECT_EQ(offer_.amountText(), "\u22120:30");
    offer_.undo();
    EXPECT_FALSE(appState_.hasIssue());
}

TEST(ContinuousCountdownTest, FinishesOnceAndNotAfterCancel) {
    ContinuousCountdown cancelled;
    QSignalSpy never(&cancelled, &Countdown::finished);
    cancelled.start(1ms);
    cancelled.cancel();
    ContinuousCountdown countdown;
    QSignalSpy finished(&countdown, &Countdown::finished);
    countdown.start(30s);
    countdown.start(20ms);
    ASSERT_TRUE(finished.wait(20'000));
    EXPECT_EQ(finished.count(), 1);
    EXPECT_EQ(never.count(), 0);
}

} // namespace quillmere
