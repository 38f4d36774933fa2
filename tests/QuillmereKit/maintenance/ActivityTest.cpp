#include "QuillmereKit/maintenance/DataStoreMaintenance.h"
#include "QuillmereKit/maintenance/RepairMemory.h"
#include "QuillmereKit/records/WorkEntry.h"
#include "tests/QuillmereKit/KitTest.h"

#include <functional>
#include <limits>
#include <random>

namespace quillmere::test {

namespace {

using platform::store::Revision;

class ActivityTest : public StoreTest {
protected:
    void repair(Instant at) { DataStoreMaintenance::reconcileActivity(*context, at, true); }
    void repair() { repair(now); }

    /// Spoils a clean record, repairs it and expects it as mended. A repaired content counts as a
    /// change made now.
    template <class R>
    struct Row {
        using V = typename R::Values;
        const char* name;
        std::function<void(V&)> spoil;
        std::function<void(V&)> mend;
        bool isContent;
    };

    template <class R>
    void expectRepaired(const typename R::Values& cleanValues, const std::vector<Row<R>>& rows) {
        for (const Row<R>& row : rows) {
            SCOPED_TRACE(row.name);
            auto expected = cleanValues;
            expected.modifiedAt = row.isContent ? now : cleanValues.modifiedAt;
            row.mend(expected);
            auto given = cleanValues;
            row.spoil(given);
            const R& record = context->insert(std::make_unique<R>(given));
            repair();
            EXPECT_EQ(record.values(), expected);
        }
    }

    BalanceAdjustmentValues clean{uuid(1), berlin(3, 1), 30, "note", "manual", now - 20, now - 10};
    WorkEntryValues cleanEntry{uuid(1), now - 9 * hour, now - hour, 30, "note", now - 20, now - 10};
};

TEST_F(ActivityTest, RepairsChanges) {
    constexpr auto least = std::numeric_limits<std::int64_t>::min();
    using V = BalanceAdjustmentValues;
    expectRepaired<BalanceAdjustment>(
        clean,
        {
            {"clean", [](V&) {}, [](V&) {}, false},
            {"unknown kind, huge amount", [](V& v) { v.kindRawValue = "sport", v.minutes = least; },
             [](V& v) { v.kindRawValue = "manual", v.minutes = -60'000; }, true},
            {"wrong sign", [](V& v) { v.kindRawValue = "appointment"; },
             [](V& v) { v.kindRawValue = "appointment", v.minutes = 0; }, true},
            {"custom category not canonical",
             [](V& v) { v.kindRawValue = "custom:IEd5bQ==", v.minutes = -5000; },
             [](V& v) { v.kindRawValue = "custom:R3lt", v.minutes = -1440; }, true},
            {"credit", [](V& v) { v.kindRawValue = "holiday", v.minutes = 5000; },
             [](V& v) { v.kindRawValue = "holiday", v.minutes = 1440; }, true},
            {"note with white space", [](V& v) { v.note = " a "; }, [](V& v) { v.note = "a"; },
             true},
            {"note too long", [](V& v) { v.note = std::string(281, 'x'); },
             [](V& v) { v.note = std::string(280, 'x'); }, true},
            {"modified ten minutes ahead",
             [&](V& v) { v.modifiedAt = now + 600, v.createdAt = now + 500; },
             [&](V& v) { v.modifiedAt = now, v.createdAt = now; }, false},
            {"modified four minutes ahead", [&](V& v) { v.modifiedAt = now + 240; },
             [&](V& v) { v.modifiedAt = now + 240; }, false},
            {"created after the change", [&](V& v) { v.createdAt = now; },
             [&](V& v) { v.createdAt = now - 10; }, false},
        });
}

TEST_F(ActivityTest, RepairsWorkEntries) {
    using V = WorkEntryValues;
    expectRepaired<WorkEntry>(
        cleanEntry,
        {
            {"clean", [](V&) {}, [](V&) {}, false},
            {"running", [](V& v) { v.endedAt.reset(); }, [](V& v) { v.endedAt.reset(); }, false},
            {"break too long", [](V& v) { v.breakMinutes = 300; },
             [](V& v) { v.breakMinutes = 240; }, true},
            {"negative break", [](V& v) { v.breakMinutes = -1; }, [](V& v) { v.breakMinutes = 0; },
             true},
            {"ends before it starts", [](V& v) { v.endedAt = v.startedAt - 1; },
             [](V& v) { v.endedAt = v.startedAt; }, true},
            {"note", [](V& v) { v.note = "\n"; }, [](V& v) { v.note = ""; }, true},
            {"modified ahead", [&](V& v) { v.modifiedAt = now + 600; },
             [&](V& v) { v.modifiedAt = now; }, false},
            {"created after the change", [&](V& v) { v.createdAt = now; },
             [&](V& v) { v.createdAt = now - 10; }, false},
        });
}

TEST_F(ActivityTest, SavesOnlyWhatItChanged) {
    context->insert(std::make_unique<BalanceAdjustment>(clean));
    context->insert(std::make_unique<WorkEntry>(cleanEntry));
    context->save();
    const Revision before = context->revision();
    repair();
    EXPECT_EQ(context->revision(), before);
    EXPECT_FALSE(context->hasChanges());
    auto& change = insertChange(now, 70'000);
    DataStoreMaintenance::reconcileActivity(*context, now, false);
    EXPECT_EQ(change.minutes(), 60'000);
    EXPECT_TRUE(context->hasChanges());
    EXPECT_EQ(makeContext()->fetch<BalanceAdjustment>().size(), 1u);
    context->rollback();
    EXPECT_EQ(context->fetch<BalanceAdjustment>().size(), 1u);
}

TEST_F(ActivityTest, LooksOnlyAtWhatWasWrittenSinceTheLastPass) {
    for (std::size_t i = 0; i < RepairMemory::worthRemembering; ++i) {
        insertChange(now + 200, 1);
    }
    context->save();
    repair();
    const Revision remembered = context->revision();
    repair(now - 50);
    EXPECT_EQ(context->revision(), remembered);

    // Written by others, at any time after: found.
    const auto other = makeContext();
    other->insert(std::make_unique<BalanceAdjustment>(clean)).setMinutes(99'999);
    other->insert(std::make_unique<WorkEntry>(cleanEntry)).setBreakMinutes(999);
    other->save();
    context->refresh();
    repair();
    const auto fresh = makeContext();
    EXPECT_EQ(fresh->fetch<WorkEntry>().at(0)->breakMinutes(), 240);
    EXPECT_EQ((fresh->sum<BalanceAdjustment, &BalanceAdjustmentValues::minutes>()),
              60'000 + static_cast<std::int64_t>(RepairMemory::worthRemembering));

    // A clock so far back that accepted times lie too far ahead: everything is looked at again.
    repair(now - 200);
    for (const BalanceAdjustment* change : context->fetch<BalanceAdjustment>()) {
        EXPECT_LE(change->modifiedAt(), now + 100);
    }
}

TEST_F(ActivityTest, ComesToRestOnAnyStore) {
    std::mt19937_64 random(4711);
    const auto pick = [&random](auto... choices) {
        using T = std::common_type_t<decltype(choices)...>;
        const T all[] = {static_cast<T>(choices)...};
        return all[random() % sizeof...(choices)];
    };
    const auto anyInstant = [&] { return now + static_cast<double>(random() % 2000) - 1000; };
    for (int i = 0; i < 300; ++i) {
        context->insert(std::make_unique<BalanceAdjustment>(BalanceAdjustmentValues{
            uuid(static_cast<std::uint8_t>(i)), anyInstant(), static_cast<std::int64_t>(random()),
            std::string(random() % 300, 'x') + pick("", " ", "\n") + pick("", "y"),
            pick("manual", "holiday", "other", "bogus", "custom:IA==", "custom:IEd5bQ=="),
            anyInstant(), anyInstant()}));
        context->insert(std::make_unique<WorkEntry>(WorkEntryValues{
            uuid(static_cast<std::uint8_t>(i)), anyInstant(),
            pick(0, 1) ? std::optional(anyInstant()) : std::nullopt,
            static_cast<std::int64_t>(random()), pick("", " a "), anyInstant(), anyInstant()}));
    }
    repair();
    repair(now + 1); // a cut note may end in white space, a creation time may lie in the skew
    const Revision settled = context->revision();
    repair(now + 2);
    DataStoreMaintenance::reconcileActivity(*makeContext(), now + 3, true);
    context->refresh();
    EXPECT_EQ(context->revision(), settled);
}

} // namespace

} // namespace quillmere::test
