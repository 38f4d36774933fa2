#include "QuillmereKit/sessions/TimerSessionController.h"

#include "QuillmereKit/records/WorkEntry.h"
#include "tests/QuillmereKit/KitTest.h"

namespace quillmere::test {

namespace {

class TimerSessionTest : public StoreTest {
protected:
    WorkEntry& insertEntry(std::uint8_t id, Instant startedAt,
                           std::optional<Instant> endedAt = std::nullopt) {
        return context->insert(std::make_unique<WorkEntry>(uuid(id), startedAt, endedAt, 0, "",
                                                           berlin(3, 1), berlin(3, 1)));
    }

    /// Identifiers of all entries as another context sees them; running ones with a star.
    [[nodiscard]] std::string stored() const {
        using Values = WorkEntryValues;
        std::string text;
        const auto other = store->makeContext({clock, calendars});
        for (const WorkEntry* entry :
             other->fetch<WorkEntry>({}, platform::store::Sort<WorkEntry>{}.by<&Values::id>())) {
            text += std::to_string(entry->id().bytes().back()) + (entry->isRunning() ? "* " : " ");
        }
        return text;
    }
};

TEST_F(TimerSessionTest, KeepsTheSessionThatStartedFirst) {
    insertEntry(1, berlin(3, 4, 9));
    insertEntry(3, berlin(3, 4, 8));
    WorkEntry& first = insertEntry(2, berlin(3, 4, 8));
    insertEntry(4, berlin(3, 4, 7), berlin(3, 4, 7.5));
    context->save();

    EXPECT_EQ(TimerSessionController::reconcileRunningEntries(*context, now, false), &first);
    EXPECT_TRUE(context->hasChanges());
    EXPECT_EQ(stored(), "1* 2* 3* 4 ");

    EXPECT_EQ(TimerSessionController::runningEntry(*context, now), &first);
    EXPECT_EQ(first.modifiedAt(), berlin(3, 1));
    context->save();
    EXPECT_EQ(stored(), "2* 4 ");
}

TEST_F(TimerSessionTest, SavesARepairOfTwoAndAStartInTheFuture) {
    WorkEntry& early = insertEntry(1, now + hour);
    insertEntry(2, now + 2 * hour);
    EXPECT_EQ(TimerSessionController::runningEntry(*context, now), &early);
    EXPECT_EQ(early.startedAt(), now);
    EXPECT_EQ(early.modifiedAt(), now);
    EXPECT_EQ(stored(), "1* ");
}

TEST_F(TimerSessionTest, LeavesOtherPendingChangesAloneWhereNothingIsAmiss) {
    insertChange(now, 5);
    EXPECT_EQ(TimerSessionController::runningEntry(*context, now), nullptr);
    EXPECT_FALSE(TimerSessionController::stop(*context, now));
    EXPECT_TRUE(context->hasChanges());
    insertEntry(1, now);
    EXPECT_NE(TimerSessionController::runningEntry(*context, now), nullptr);
    EXPECT_FALSE(TimerSessionController::start(*context, now));
    EXPECT_TRUE(context->hasChanges());
    EXPECT_EQ(stored(), "");
}

TEST_F(TimerSessionTest, TogglesBetweenRunningAndStopped) {
    const Instant started = now - hour;
    EXPECT_TRUE(TimerSessionController::toggle(*context, started));
    const WorkEntry* entry = TimerSessionController::runningEntry(*context, now);
    ASSERT_NE(entry, nullptr);
    EXPECT_EQ(entry->startedAt(), started);
    EXPECT_EQ(entry->createdAt(), now);
    EXPECT_EQ(entry->modifiedAt(), now);

    EXPECT_FALSE(TimerSessionController::toggle(*context, now + hour));
    EXPECT_EQ(entry->endedAt(), now + hour);
    EXPECT_EQ(entry->modifiedAt(), now + hour);
    EXPECT_FALSE(context->hasChanges());
    EXPECT_TRUE(TimerSessionController::start(*context, now));
    EXPECT_TRUE(TimerSessionController::stop(*context, now));
    EXPECT_EQ(makeContext()->fetch<WorkEntry>().size(), 2u);
}

} // namespace

} // namespace quillmere::test
