#include "tests/Platform/store/StoreTest.h"

#include <limits>
#include <stdexcept>
#include <thread>

namespace platform::store::test {
namespace {

/// The rules of a context, over a store in a file and one in memory.
class ContextTest : public StoreTest, public testing::WithParamInterface<bool> {
protected:
    [[nodiscard]] std::unique_ptr<Context> makeContext() const {
        return store_->makeContext(environment());
    }

    const std::shared_ptr<Store> store_ =
        Store::open(testSchema(), {.file = file(), .inMemory = GetParam()});
    const std::unique_ptr<Context> context_ = makeContext();
};

TEST_P(ContextTest, StoresEveryFieldExactly) {
    const std::string text("\0\xff\xc3\xa9 ' text", 11);
    const std::vector<Instant> instants = {
        {1780000000.123456}, {-0.0}, {0.1 + 0.2}, {notANumber}, {-1e300}};
    for (const Instant instant : instants) {
        auto reminder = std::make_unique<Reminder>();
        reminder->setMinutes(std::numeric_limits<std::int64_t>::min());
        reminder->setDone(true);
        reminder->setTitle(text);
        reminder->setDue(instant);
        reminder->setEndedAt(instant);
        context_->insert(std::move(reminder));
    }
    context_->save();

    const auto other = makeContext();
    const auto stored = other->fetch<Reminder>();
    ASSERT_EQ(stored.size(), instants.size());
    for (std::size_t i = 0; i < instants.size(); ++i) {
        const ReminderValues& values = stored[i]->values();
        EXPECT_EQ(values.id, context_->fetch<Reminder>()[i]->values().id);
        EXPECT_EQ(values.minutes, std::numeric_limits<std::int64_t>::min());
        EXPECT_TRUE(values.isDone);
        EXPECT_EQ(values.title, text);
        EXPECT_TRUE(sameValue(values.due, instants[i]));
        EXPECT_TRUE(sameValue(values.endedAt, std::optional(instants[i])));
    }
}

TEST_P(ContextTest, ShowsPendingChangesToItsOwnFetchesOnly) {
    Reminder& kept = addReminder(*context_, "kept", 1);
    Reminder& gone = addReminder(*context_, "gone", 2);
    context_->save();
    kept.setTitle("renamed");
    context_->remove(gone);
    addReminder(*context_, "new", 4);

    EXPECT_EQ(titles(*context_), "new renamed");
    EXPECT_EQ(findTitle(*context_, "kept"), nullptr);
    EXPECT_EQ(findTitle(*context_, "renamed"), &kept);
    EXPECT_EQ(context_->find<Reminder>(gone.key()), nullptr);
    EXPECT_EQ((context_->sum<Reminder, &ReminderValues::minutes>()), 5);
    EXPECT_EQ(titles(*makeContext()), "gone kept");

    context_->save();
    EXPECT_EQ((context_->sum<Reminder, &ReminderValues::minutes>()), 5);
    EXPECT_EQ(titles(*makeContext()), "new renamed");
    EXPECT_FALSE(context_->hasChanges());
}

TEST_P(ContextTest, KeepsRecordsWithOneIdApart) {
    const Uuid id = Uuid::random();
    Reminder& first = addReminder(*context_, "first");
    Reminder& second = addReminder(*context_, "second");
    first.setId(id);
    second.setId(id);
    context_->save();
    EXPECT_NE(first.key(), second.key());

    const auto other = makeContext();
    const auto both = other->fetch<Reminder>(
        Filter<Reminder>{}.where<&ReminderValues::id>(Comparison::equal, id));
    ASSERT_EQ(both.size(), 2U);
    EXPECT_EQ(other->find<Reminder>(both[0]->key()), both[0]);
    other->remove(*both[0]);
    other->save();
    EXPECT_EQ(titles(*makeContext()), "second");
}

TEST_P(ContextTest, RollbackRestoresEverything) {
    Reminder& changed = addReminder(*context_, "changed", 1);
    Reminder& removed = addReminder(*context_, "removed");
    context_->setNote("colour", "red");
    context_->save();
    changed.setTitle("other");
    changed.setEndedAt(Instant{5});
    removed.setTitle("changed, then removed");
    context_->remove(removed);
    Reminder& inserted = addReminder(*context_, "inserted");
    Reminder& brief = addReminder(*context_, "inserted, then removed");
    context_->remove(brief);
    context_->setNote("colour", "blue");
    ASSERT_TRUE(context_->hasChanges());

    context_->rollback();

    EXPECT_FALSE(context_->hasChanges());
    EXPECT_EQ(titles(*context_), "changed removed");
    EXPECT_EQ(changed.values().endedAt, std::nullopt);
    EXPECT_EQ(removed.state(), RecordState::stored);
    EXPECT_EQ(inserted.state(), RecordState::detached);
    EXPECT_EQ(inserted.values().title, "inserted");
    EXPECT_EQ(brief.state(), RecordState::detached);
    EXPECT_EQ(context_->note("colour"), "red");
    inserted.setTitle("no longer anybody's");
    context_->remove(inserted);
    EXPECT_FALSE(context_->hasChanges());
}

TEST_P(ContextTest, TakesAChangeBackWhenTheStoredValueIsAssigned) {
    Reminder& reminder = addReminder(*context_, "same", 1, {notANumber});
    context_->save();
    const Revision revision = context_->revision();
    reminder.setMinutes(2);
    EXPECT_TRUE(context_->hasChanges());
    reminder.setMinutes(1);
    reminder.setDue({notANumber});
    EXPECT_FALSE(context_->hasChanges());
    context_->save();
    EXPECT_EQ(context_->revision(), revision);
}

TEST_P(ContextTest, KeepsAProvisionalKeyFindingItsRecordAndNeverReusesASavedOne) {
    Reminder& reminder = addReminder(*context_, "new");
    const RowKey provisional = reminder.key();
    EXPECT_TRUE(isProvisional(provisional));
    EXPECT_EQ(context_->find<Reminder>(provisional), &reminder);
    context_->save();
    EXPECT_FALSE(isProvisional(reminder.key()));
    EXPECT_EQ(context_->find<Reminder>(provisional), &reminder);
    EXPECT_EQ(context_->find<Reminder>(reminder.key()), &reminder);
    context_->remove(reminder);
    context_->save();
    const Reminder* next = &addReminder(*context_, "next");
    context_->save();
    EXPECT_GT(next->key(), reminder.key());
}

TEST_P(ContextTest, RefreshTakesInExactlyWhatOthersCommitted) {
    Reminder& edited = addReminder(*context_, "edited", 1);
    Reminder& removed = addReminder(*context_, "removed");
    Reminder& mine = addReminder(*context_, "mine", 1);
    Reminder& wanted = addReminder(*context_, "wanted", 1);
    context_->save();
    const Revision before = context_->revision();
    const auto other = makeContext();
    findTitle(*other, "edited")->setMinutes(2);
    other->remove(*findTitle(*other, "removed"));
    findTitle(*other, "mine")->setMinutes(2);
    findTitle(*other, "mine")->setDue({9});
    other->remove(*findTitle(*other, "wanted"));
    addReminder(*other, "added");
    other->save();
    mine.setMinutes(7);
    wanted.setMinutes(7);

    context_->refresh();

    EXPECT_EQ(edited.values().minutes, 2);
    EXPECT_EQ(removed.state(), RecordState::detached);
    EXPECT_EQ(mine.values().minutes, 7) << "an unsaved change stays";
    EXPECT_EQ(mine.values().due, Instant{9}) << "beside it the newer value comes in";
    EXPECT_EQ(titles(*context_), "added edited mine wanted");
    EXPECT_EQ(context_->fetchChangedSince<Reminder>(before).size(), 4U);
    EXPECT_EQ(context_->fetchChangedSince<Reminder>(context_->revision()).size(), 2U);

    context_->save();
    EXPECT_EQ(titles(*makeContext()), "added edited mine wanted") << "written anew";
    other->refresh();
    EXPECT_EQ(findTitle(*other, "mine")->values().minutes, 7);
    EXPECT_EQ(findTitle(*other, "mine")->values().due, Instant{9});
    EXPECT_EQ(findTitle(*other, "wanted")->values().minutes, 7);
}

TEST_P(ContextTest, RollbackAfterRefreshGivesTheNewlyStoredValues) {
    Reminder& edited = addReminder(*context_, "edited", 1);
    Reminder& removed = addReminder(*context_, "removed", 1);
    context_->save();
    const auto other = makeContext();
    findTitle(*other, "edited")->setMinutes(2);
    other->remove(*findTitle(*other, "removed"));
    other->save();
    edited.setMinutes(7);
    removed.setMinutes(7);
    context_->refresh();
    context_->rollback();
    EXPECT_EQ(edited.values().minutes, 2);
    EXPECT_EQ(removed.state(), RecordState::detached);
    EXPECT_EQ(titles(*context_), "edited");
}

TEST_P(ContextTest, SavesOfSeveralContextsMeetFieldByField) {
    Reminder& reminder = addReminder(*context_, "shared", 1);
    context_->save();
    const auto other = makeContext();
    Reminder& same = *findTitle(*other, "shared");
    same.setMinutes(2);
    reminder.setDone(true);
    other->save();
    context_->save();
    other->refresh();
    const auto third = makeContext();
    for (const Reminder* seen : {&reminder, &same, findTitle(*third, "shared")}) {
        EXPECT_EQ(seen->values().minutes, 2);
        EXPECT_TRUE(seen->values().isDone);
    }
}

TEST_P(ContextTest, SavesManyRecordsTogetherAsItWouldOneByOne) {
    constexpr std::size_t count = 150;
    std::vector<Reminder*> mine;
    for (std::size_t i = 0; i < count; ++i) {
        mine.push_back(&addReminder(*context_, "stored" + std::to_string(i)));
    }
    context_->save();
    const auto other = makeContext();
    const auto third = makeContext();
    const auto theirs = other->fetch<Reminder>();
    const auto seenByThird = third->fetch<Reminder>();
    for (std::size_t i = 0; i < count; i += 10) {
        theirs[i]->setDue({static_cast<double>(i)});
        other->remove(*theirs[i + 1]);
    }
    other->save();
    for (std::size_t i = 0; i < count; ++i) {
        i < 100 ? mine[i]->setTitle("changed") : mine[i]->setEndedAt(Instant{1.5});
        mine[i]->setMinutes(static_cast<std::int64_t>(i));
    }
    context_->remove(*mine[5]);
    for (std::size_t i = 0; i < count; ++i) {
        mine.push_back(&addReminder(*context_, "new" + std::to_string(i)));
    }
    context_->save();
    mine.push_back(&addReminder(*context_, "last"));
    context_->save();

    other->refresh();
    third->refresh(); // sees no deletion of what was written anew
    EXPECT_TRUE(seenByThird[1]->isAlive());
    for (Context* const context : {other.get(), third.get()}) {
        for (std::size_t i = 0; i < mine.size(); ++i) {
            SCOPED_TRACE(i);
            const Reminder* found = context->find<Reminder>(mine[i]->key());
            ASSERT_EQ(found != nullptr, i != 5);
            ASSERT_TRUE(i == 5 || found->values() == mine[i]->values());
            ASSERT_TRUE(i == 0 || mine[i - 1]->key() < mine[i]->key());
        }
        EXPECT_EQ(context->find<Reminder>(mine[40]->key())->values().due, Instant{40});
    }
}

TEST_P(ContextTest, FetchBringsRecordsUpToDate) {
    Reminder& reminder = addReminder(*context_, "a", 1);
    context_->save();
    const auto other = makeContext();
    findTitle(*other, "a")->setMinutes(5);
    other->save();
    const auto found = context_->fetch<Reminder>(
        Filter<Reminder>{}.where<&ReminderValues::minutes>(Comparison::equal, 5));
    ASSERT_EQ(found.size(), 1U);
    EXPECT_EQ(found[0], &reminder);
    EXPECT_EQ(reminder.values().minutes, 5);
}

TEST_P(ContextTest, RemovesAllOfOneType) {
    addReminder(*context_, "stored");
    context_->insert(std::make_unique<Tag>());
    context_->save();
    addReminder(*context_, "pending");
    context_->removeAll<Reminder>();
    addReminder(*context_, "later");
    EXPECT_EQ(titles(*context_), "later");
    context_->save();
    EXPECT_EQ(titles(*makeContext()), "later");
    EXPECT_EQ(makeContext()->fetch<Tag>().size(), 1U);
}

TEST_P(ContextTest, RefusesWhatItCannotDo) {
    addReminder(*context_, "a", std::numeric_limits<std::int64_t>::max());
    addReminder(*context_, "b", 1);
    const auto sum = [&] { (void)context_->sum<Reminder, &ReminderValues::minutes>(); };
    EXPECT_EQ(faultOf(sum), StoreFault::misuse);
    context_->save();
    EXPECT_EQ(faultOf(sum), StoreFault::misuse);
    const auto other = makeContext();
    EXPECT_EQ(faultOf([&] { other->remove(*context_->fetch<Reminder>()[0]); }), StoreFault::misuse);
}

TEST_P(ContextTest, TellsListenersOfCommitsWhileTheyAreRegistered) {
    int commits = 0;
    auto registration = store_->onCommit([&] { ++commits; });
    context_->save();
    EXPECT_EQ(commits, 0) << "nothing was pending";
    addReminder(*context_, "a");
    context_->save();
    registration.reset();
    addReminder(*context_, "b");
    context_->save();
    EXPECT_EQ(commits, 1);
}

TEST_P(ContextTest, ASaveThatWouldDoubleAUniqueValueFailsWhole) {
    const auto other = makeContext();
    const TagValues taken;
    other->insert(std::make_unique<Tag>(taken));
    other->save();
    addReminder(*context_, "beside it");
    context_->insert(std::make_unique<Tag>(taken));
    EXPECT_EQ(faultOf([&] { context_->save(); }), StoreFault::notUnique);
    EXPECT_TRUE(context_->hasChanges());
    EXPECT_TRUE(other->fetch<Reminder>().empty());
    context_->rollback();
    context_->insert(std::make_unique<Tag>());
    context_->save();
    EXPECT_EQ(other->fetch<Tag>().size(), 2U);
}

TEST_P(ContextTest, APreparedSaveSeesAllAndNobodyComesBetween) {
    constexpr int saves = 50;
    const auto countUp = [this] {
        const auto context = makeContext();
        for (int round = 0; round < saves / 2; ++round) {
            context->save([&] {
                Reminder* shared = findTitle(*context, "shared");
                shared = shared == nullptr ? &addReminder(*context, "shared") : shared;
                shared->setMinutes(shared->values().minutes + 1);
            });
        }
    };
    std::thread thread(countUp);
    countUp();
    thread.join();
    ASSERT_EQ(titles(*context_), "shared");
    EXPECT_EQ(findTitle(*context_, "shared")->values().minutes, saves);

    context_->save([] {});
    EXPECT_EQ(context_->revision(), Revision{saves}) << "nothing was changed";
    const auto fail = [this] {
        addReminder(*context_, "refused");
        throw std::invalid_argument("no");
    };
    EXPECT_THROW(context_->save(fail), std::invalid_argument);
    countUp(); // the transaction has ended
    EXPECT_EQ(titles(*makeContext()), "shared");
}

INSTANTIATE_TEST_SUITE_P(Stores, ContextTest, testing::Bool(),
                         [](const auto& row) { return row.param ? "Memory" : "File"; });

} // namespace
} // namespace platform::store::test
