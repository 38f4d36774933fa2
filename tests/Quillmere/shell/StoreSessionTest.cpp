#include "Quillmere/shell/StoreSession.h"

#include "Quillmere/shell/TimeFollower.h"
#include "QuillmereKit/persistence/QuillmerePersistence.h"
#include "tests/Platform/files/TestFolder.h"

#include <QtTest/QSignalSpy>
#include <QtTest/QTest>

#include <gtest/gtest.h>

namespace quillmere {
namespace {

using platform::store::LiveState;
using platform::store::Store;

constexpr int patience = 30'000;

class StoreSessionTest : public testing::Test {
protected:
    [[nodiscard]] std::shared_ptr<Store> open() const {
        return Store::open(QuillmerePersistence::schema(),
                           {.file = folder_.path() / "Quillmere.sqlite"});
    }

    void save(Store& store, std::int64_t minutes) { save(store, minutes, clock_.now()); }

    void save(Store& store, std::int64_t minutes, platform::Instant date) {
        const auto context = store.makeContext({clock_, time_});
        context->insert(std::make_unique<BalanceAdjustment>(platform::Uuid::random(), date, minutes,
                                                            "", BalanceAdjustmentKind::manual,
                                                            clock_.now(), clock_.now()));
        context->save();
    }

    static bool hasRows(StoreSession& session, std::size_t count) {
        return QTest::qWaitFor(
            [&] {
                return session.adjustments().state() != LiveState::loading &&
                       session.adjustments().size() == count;
            },
            patience);
    }

    TestFolder folder_;
    platform::ManualClock clock_{platform::Instant{1'780'000'000}};
    TimeFollower time_{clock_};
};

TEST_F(StoreSessionTest, KnowsTheSettingsAtOnceAndTheHistoryLater) {
    const auto store = open();
    save(*store, 90);
    {
        const auto context = store->makeContext({clock_, time_});
        context->insert(TimeBankSettings::create(clock_));
        context->save();
    }
    StoreSession session(store, time_);
    EXPECT_NE(session.settingsRecord(), nullptr);
    EXPECT_EQ(session.adjustments().state(), LiveState::loading);
    QSignalSpy published(&session, &StoreSession::adjustmentsChanged);
    ASSERT_TRUE(hasRows(session, 1));
    EXPECT_EQ(published.count(), 1);
    EXPECT_EQ(session.adjustments()[0].minutes, 90);
}

TEST_F(StoreSessionTest, EmptyHistoryIsEmptyAndNotLoading) {
    StoreSession session(open(), time_);
    ASSERT_TRUE(hasRows(session, 0));
    EXPECT_EQ(session.adjustments().state(), LiveState::empty);
    EXPECT_EQ(session.settingsRecord(), nullptr);
}

TEST_F(StoreSessionTest, SumsTheStoreWhileTheHistoryIsMissing) {
    struct Turn {
        const char* name;
        std::function<void(StoreSession&, Store&)> happens;
        std::int64_t minutes;
    };
    const auto insert = [&](StoreSession& session) {
        session.context().insert(std::make_unique<BalanceAdjustment>(
            platform::Uuid::random(), clock_.now(), 7, "", BalanceAdjustmentKind::manual,
            clock_.now(), clock_.now()));
    };
    const std::vector<Turn> turns{
        {"nothing", [](StoreSession&, Store&) {}, 90},
        {"a change is pending", [&](StoreSession& session, Store&) { insert(session); }, 97},
        {"a change is saved",
         [&](StoreSession& session, Store&) {
             insert(session);
             session.context().save();
         },
         97},
        {"another commits",
         [&](StoreSession& session, Store& store) {
             save(store, 30);
             session.context().refresh();
         },
         120},
        {"the clock moves on", [&](StoreSession&, Store&) { clock_.advance(7200); }, 95}};
    for (const Turn& turn : turns) {
        SCOPED_TRACE(turn.name);
        const auto store =
            Store::open(QuillmerePersistence::schema(), {.file = {}, .inMemory = true});
        save(*store, 90);
        save(*store, 5, clock_.now() + 3600);
        StoreSession session(store, time_);
        turn.happens(session, *store);
        EXPECT_EQ(session.adjustments().state(), LiveState::loading);
        EXPECT_EQ(session.minutesInStore(), turn.minutes);
    }
}

TEST_F(StoreSessionTest, TakesInWhatOtherContextsAndOtherProgramsCommit) {
    const auto store = open();
    const auto otherProgram = open();
    StoreSession session(store, time_);
    ASSERT_TRUE(hasRows(session, 0));
    save(*store, 30);
    EXPECT_TRUE(hasRows(session, 1));
    save(*otherProgram, 45);
    EXPECT_TRUE(hasRows(session, 2));
}

TEST_F(StoreSessionTest, LetsGoOfTheStoreWhileItsHistoryIsBeingRead) {
    std::weak_ptr<Store> store;
    {
        const auto opened = open();
        store = opened;
        const StoreSession session(opened, time_);
    }
    EXPECT_TRUE(store.expired());
    QCoreApplication::processEvents();
}

} // namespace
} // namespace quillmere
