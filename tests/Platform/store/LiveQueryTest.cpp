#include "Platform/store/LiveQuery.h"

#include "tests/Platform/store/StoreTest.h"

#include <algorithm>
#include <ostream>
#include <random>
#include <sstream>
#include <thread>

namespace platform::store {

void PrintTo(const ListStep& step, std::ostream* out) {
    constexpr const char* kinds[] = {"insert", "remove", "update"};
    *out << kinds[static_cast<int>(step.kind)] << ' ' << step.index << '+' << step.count;
}

} // namespace platform::store

namespace platform::store::test {
namespace {

/// Reminders that are not done, by their due time, the latest first.
struct ReminderRow {
    RowRef ref;
    double due;
    std::int64_t minutes;

    static std::optional<ReminderRow> make(RowRef ref, const ReminderValues& values) {
        if (values.isDone) {
            return std::nullopt;
        }
        return ReminderRow{ref, values.due.secondsSince1970, values.minutes};
    }
    friend bool operator<(const ReminderRow& a, const ReminderRow& b) { return a.due > b.due; }
    friend bool operator==(const ReminderRow&, const ReminderRow&) = default;
};

void PrintTo(const ReminderRow& row, std::ostream* out) {
    *out << row.due << ':' << row.minutes;
}

using Query = LiveQuery<Reminder, ReminderRow>;
using Kind = ListStep::Kind;

/// Follows a query by its reports alone, as a view's model does.
class Follower {
public:
    explicit Follower(const Query& query) : query_(query) {}

    void follow(const ListSteps& steps) {
        if (steps.empty()) {
            rows_.assign(query_.rows().begin(), query_.rows().end());
        }
        for (const ListStep& step : steps) {
            const auto at = rows_.begin() + static_cast<std::ptrdiff_t>(step.index);
            const auto count = static_cast<std::ptrdiff_t>(step.count);
            const auto source = query_.rows().begin() + static_cast<std::ptrdiff_t>(step.index);
            if (step.kind == Kind::remove) {
                rows_.erase(at, at + count);
            } else if (step.kind == Kind::insert) {
                rows_.insert(at, source, source + count);
            } else {
                std::copy(source, source + count, at);
            }
        }
    }

    [[nodiscard]] const std::vector<ReminderRow>& rows() const { return rows_; }

private:
    const Query& query_;
    std::vector<ReminderRow> rows_;
};

std::vector<ReminderRow> listed(const Query& query) {
    return {query.rows().begin(), query.rows().end()};
}

class LiveQueryTest : public StoreTest, public testing::WithParamInterface<bool> {
protected:
    /// Reminders due at 1, 2, 3 and so on; saved.
    std::vector<Reminder*> addSome(int count) {
        std::vector<Reminder*> reminders;
        for (int i = 1; i <= count; ++i) {
            reminders.push_back(&addReminder(*context_, "r", i, {static_cast<double>(i)}));
        }
        context_->save();
        return reminders;
    }

    const std::shared_ptr<Store> store_ =
        Store::open(testSchema(), {.file = file(), .inMemory = GetParam()});
    const std::unique_ptr<Context> context_ = store_->makeContext(environment());
    const std::unique_ptr<Context> other_ = store_->makeContext(environment());
};

INSTANTIATE_TEST_SUITE_P(Stores, LiveQueryTest, testing::Bool(),
                         [](const auto& row) { return row.param ? "Memory" : "File"; });

TEST_P(LiveQueryTest, ReportsExactlyWhatMoved) {
    const auto reminders = addSome(6); // listed as 6 5 4 3 2 1
    Query query(*context_);
    query.load();
    std::vector<ListSteps> reports;
    const auto subscription = query.observe([&](const auto& steps) { reports.push_back(steps); });
    const auto latest = [&] {
        return reports.empty() ? ListSteps{} : std::exchange(reports, {})[0];
    };

    reminders[2]->setMinutes(99);
    EXPECT_TRUE(reports.empty()) << "a field change shows when it is saved";
    context_->save();
    EXPECT_EQ(latest(), (ListSteps{{Kind::update, 3, 1}}));

    reminders[2]->setDue({3.5});
    context_->save();
    EXPECT_EQ(latest(), (ListSteps{{Kind::update, 3, 1}})) << "its place is the same";

    reminders[0]->setDue({9});
    reminders[1]->setDue({8});
    context_->save(); // 9 8 6 5 4 3.5
    EXPECT_EQ(latest(), (ListSteps{{Kind::remove, 4, 2}, {Kind::insert, 0, 2}}));

    context_->remove(*reminders[5]);
    EXPECT_EQ(latest(), (ListSteps{{Kind::remove, 2, 1}}));
    context_->rollback();
    EXPECT_EQ(latest(), (ListSteps{{Kind::insert, 2, 1}}));

    reminders[3]->setTitle("not shown");
    context_->save();
    EXPECT_TRUE(reports.empty()) << "an equal row is no report";

    Reminder& last = addReminder(*context_, "new", 0, {0});
    EXPECT_EQ(latest(), (ListSteps{{Kind::insert, 6, 1}}));
    context_->save();
    EXPECT_EQ(latest(), (ListSteps{{Kind::update, 6, 1}}))
        << "it keeps its place as it gets its key";
    EXPECT_EQ(query.record(6), &last);
    EXPECT_EQ(query.indexOf(last.key()), 6U);

    for (Reminder* reminder : other_->fetch<Reminder>()) {
        if (reminder->values().due > Instant{5.5}) {
            reminder->setDone(true);
        } else if (reminder->values().due == Instant{5}) {
            reminder->setMinutes(-1);
        }
    }
    other_->save();
    context_->refresh(); // 5 4 3.5 0
    EXPECT_EQ(latest(), (ListSteps{{Kind::remove, 0, 3}, {Kind::update, 0, 1}}));

    context_->removeAll<Reminder>();
    EXPECT_EQ(latest(), (ListSteps{{Kind::remove, 0, 4}}));
    EXPECT_EQ(query.state(), LiveState::empty);
}

TEST_P(LiveQueryTest, LoadingIsNotEmpty) {
    Query query(*context_);
    int reports = 0;
    const auto subscription = query.observe([&](const auto&) { ++reports; });
    addReminder(*context_, "unseen as yet");
    EXPECT_EQ(query.state(), LiveState::loading);
    EXPECT_EQ(reports, 0);
    context_->rollback();
    query.load();
    EXPECT_EQ(query.state(), LiveState::empty);
    EXPECT_EQ(reports, 1);
    addReminder(*context_, "a");
    EXPECT_EQ(query.state(), LiveState::filled);
}

TEST_P(LiveQueryTest, AdoptsWhatAWorkerReadWithEverythingNewer) {
    const auto reminders = addSome(5);
    Query query(*context_);
    Query::Loaded loaded;
    std::thread([&] { loaded = Query::readRows(*store_); }).join();
    ASSERT_EQ(loaded.rows.size(), 5U);

    other_->remove(*other_->find<Reminder>(reminders[0]->key()));
    other_->find<Reminder>(reminders[1]->key())->setDue({10});
    other_->save();
    reminders[2]->setDue({20});
    context_->remove(*reminders[3]);
    addReminder(*context_, "saved", 6, {6});
    context_->save();
    reminders[4]->setDue({30});
    addReminder(*context_, "pending", 7, {7});

    query.adopt(std::move(loaded));

    std::vector<double> dues;
    for (const ReminderRow& row : query.rows()) {
        dues.push_back(row.due);
    }
    EXPECT_EQ(dues, (std::vector<double>{30, 20, 10, 7, 6}));
}

TEST_P(LiveQueryTest, ObserversMaySaveAndLeave) {
    addSome(3);
    Query query(*context_);
    query.load();
    Follower first(query);
    Follower second(query);
    first.follow({});
    second.follow({});
    int answers = 0;
    Subscription leaving;
    const auto answering = query.observe([&](const ListSteps& steps) {
        first.follow(steps);
        leaving.reset();
        if (answers++ < 3) {
            addReminder(*context_, "answer", 0, {static_cast<double>(answers) / 10});
            context_->save();
        }
    });
    int left = 0;
    leaving = query.observe([&](const ListSteps&) { ++left; });
    const auto following = query.observe([&](const ListSteps& steps) {
        second.follow(steps);
        EXPECT_EQ(second.rows(), listed(query)) << "what is reported is what is there";
    });

    addReminder(*context_, "question", 0, {9});

    EXPECT_EQ(query.size(), 7U);
    EXPECT_EQ(first.rows(), listed(query));
    EXPECT_EQ(second.rows(), listed(query));
    EXPECT_EQ(left, 0);
}

TEST_P(LiveQueryTest, AnObserverMayDestroyItsQuery) {
    auto query = std::make_unique<Query>(*context_);
    Query other(*context_);
    query->load();
    other.load();
    const auto subscription = query->observe([&](const auto&) { query.reset(); });
    addReminder(*context_, "a");
    EXPECT_EQ(query, nullptr);
    EXPECT_EQ(other.size(), 1U);
}

/// Whatever two contexts do, a query lists what a fetch would answer, and whoever follows its
/// reports arrives at the same list.
class LiveQueryModelTest : public StoreTest, public testing::WithParamInterface<unsigned> {
protected:
    /// What the query should list, worked out anew.
    static std::vector<ReminderRow> expected(Context& context) {
        std::vector<ReminderRow> rows;
        for (const Reminder* reminder : context.fetch<Reminder>()) {
            if (auto row = ReminderRow::make(reminder->key(), reminder->values())) {
                rows.push_back(*row);
            }
        }
        std::ranges::sort(rows, [](const ReminderRow& a, const ReminderRow& b) {
            return a.due != b.due ? a.due > b.due : a.ref < b.ref;
        });
        return rows;
    }

    [[nodiscard]] int below(int limit) {
        return std::uniform_int_distribution<int>(0, limit - 1)(random_);
    }

    [[nodiscard]] Instant someDue() { return {static_cast<double>(below(40))}; }

    void changeSomething(Context& context) {
        const auto all = context.fetch<Reminder>();
        if (below(3) == 0 || all.empty()) {
            addReminder(context, "r", below(5), someDue());
            return;
        }
        Reminder& one = *all[static_cast<std::size_t>(below(static_cast<int>(all.size())))];
        switch (below(4)) {
        case 0:
            context.remove(one);
            break;
        case 1:
            one.setDue(someDue());
            break;
        case 2:
            one.setMinutes(below(5));
            break;
        default:
            one.setDone(below(2) == 0);
        }
    }

    std::mt19937 random_{GetParam()};
};

INSTANTIATE_TEST_SUITE_P(Seeds, LiveQueryModelTest, testing::Range(1U, 9U));

TEST_P(LiveQueryModelTest, ListsWhatAFetchAnswers) {
    const auto store = Store::open(testSchema(), {.inMemory = true});
    const auto context = store->makeContext(environment());
    const auto other = store->makeContext(environment());
    Query query(*context);
    query.load();
    Follower follower(query);
    const auto subscription = query.observe([&](const ListSteps& s) { follower.follow(s); });
    for (int round = 0; round < 400; ++round) {
        SCOPED_TRACE(round);
        Context& one = below(3) == 0 ? *other : *context;
        for (int changes = below(6); changes >= 0; --changes) {
            changeSomething(one);
        }
        if (below(4) == 0) {
            context->refresh();
            ASSERT_EQ(follower.rows(), listed(query));
        }
        below(4) == 0 ? one.rollback() : one.save();
        if (&one == context.get()) {
            context->refresh();
            ASSERT_EQ(listed(query), expected(*context));
            ASSERT_EQ(follower.rows(), listed(query));
        }
    }
    EXPECT_GT(query.size(), 20U) << "there was nothing to compare";
}

} // namespace
} // namespace platform::store::test
