#include "QuillmereKit/maintenance/StoredBalance.h"

#include "tests/QuillmereKit/KitTest.h"

#include <random>

namespace quillmere::test {

namespace {

class StoredBalanceTest : public StoreTest {
protected:
    void SetUp() override {
        for (int i = 0; i < 600; ++i) {
            insertChange(now + 2 * day - i * 6 * hour, i % 7 - 2);
        }
        context->save();
    }

    /// Compares with what reading every change tells.
    void expectFiguresAreTrue(bool remember = true) const {
        const Instant dayStart = calendar.startOfDay(clock.now());
        StoredBalance::Figures expected;
        context->scan<BalanceAdjustment>({}, [&](auto, const BalanceAdjustmentValues& change) {
            if (change.date <= clock.now()) {
                expected.balanceMinutes += change.minutes;
                if (change.date >= dayStart) {
                    (change.minutes > 0 ? expected.addedMinutes : expected.takenMinutes) +=
                        change.minutes;
                }
            }
        });
        StoredBalance balance(*context);
        const auto figures = balance.figures(dayStart, clock.now());
        EXPECT_EQ(figures.balanceMinutes, expected.balanceMinutes);
        EXPECT_EQ(figures.addedMinutes, expected.addedMinutes);
        EXPECT_EQ(figures.takenMinutes, expected.takenMinutes);
        EXPECT_EQ(StoredBalance(*context).balanceMinutes(clock.now()), expected.balanceMinutes);
        if (remember) {
            balance.remember();
        }
    }
    void expectNoteKept(bool isKept) const {
        const auto before = context->note("summedUp.changes");
        expectFiguresAreTrue();
        EXPECT_EQ(context->note("summedUp.changes") == before, isKept);
    }
};

TEST_F(StoredBalanceTest, BuildsOnItsNoteUntilAnEarlierChangeMoves) {
    expectNoteKept(false);
    BalanceAdjustment& added = insertChange(now - 90 * day, 30);
    context->save();
    expectNoteKept(true);
    context->remove(added);
    context->save();
    clock.advance(3 * day);
    expectNoteKept(true);
    context->find<BalanceAdjustment>(platform::store::RowKey{500})->setMinutes(99);
    expectNoteKept(true); // not saved, and so not noted
    context->save();
    expectNoteKept(false);
}

TEST_F(StoredBalanceTest, StaysTrueWhateverHappens) {
    std::mt19937 random(7); // NOLINT(cert-msc51-cpp): the same story every time
    const auto other = makeContext();
    for (int step = 0; step < 400; ++step) {
        SCOPED_TRACE(step);
        platform::store::Context& writer = random() % 2 == 0 ? *context : *other;
        writer.refresh();
        const Instant date = clock.now() + (static_cast<double>(random() % 200) - 190) * hour;
        const platform::store::RowKey key{static_cast<std::int64_t>(random() % 700 + 1)};
        auto* const known = writer.find<BalanceAdjustment>(key);
        const auto choice = random() % 8;
        if (choice == 0) {
            clock.advance((static_cast<double>(random() % 60) - 12) * hour);
        } else if (choice == 1 && known != nullptr) {
            writer.remove(*known);
        } else if (choice == 2 && known != nullptr) {
            known->setDate(date);
            known->setMinutes(step);
        } else {
            writer.insert(std::make_unique<BalanceAdjustment>(
                Uuid::random(), date, step - 200, "", BalanceAdjustmentKind::manual, date, date));
        }
        if (random() % 4 != 0) {
            writer.save();
        }
        expectFiguresAreTrue(random() % 2 == 0);
    }
}

} // namespace

} // namespace quillmere::test
