#include "QuillmereKit/archive/TimeBankArchive.h"
#include "QuillmereKit/archive/TimeBankArchiveError.h"
#include "QuillmereKit/maintenance/ActivityRepair.h"
#include "QuillmereKit/maintenance/DataStoreMaintenance.h"
#include "QuillmereKit/records/WorkEntry.h"
#include "QuillmereKit/records/WorkSchedule.h"
#include "tests/QuillmereKit/KitTest.h"
#include "tests/QuillmereKit/archive/RandomTimeBank.h"

#include <functional>

namespace quillmere::test {

namespace {

class ArchiveMerge : public StoreTest {
protected:
    TimeBankArchiveMergeResult merge(const TimeBankArchive& archive) {
        return archive.merge(*context, now);
    }

    [[nodiscard]] TimeBankArchive stored() { return TimeBankArchive::ofStore(*context, now); }

    /// Inserts the records as they are, duplicates and all, but none that is running: all but one
    /// of those would be deleted, for the next merge to add again.
    void insertRaw(const TimeBankArchive& archive) {
        for (const auto& r : archive.workEntries) {
            context->insert(std::make_unique<WorkEntry>(r.id, r.startedAt, r.endedAt.value_or(now),
                                                        r.breakMinutes, r.note, r.createdAt,
                                                        r.modifiedAt));
        }
        for (const auto& r : archive.balanceAdjustments) {
            insertChange(r.date, r.minutes, r.id).setModifiedAt(r.modifiedAt);
        }
        for (const auto& r : archive.schedules) {
            context->insert(std::make_unique<WorkSchedule>(r.id, r.effectiveFrom, r.weekdayMinutes,
                                                           r.createdAt, r.modifiedAt));
        }
        context->save();
    }

    Instant before = now - day;
};

TimeBankArchive::BalanceAdjustmentRecord archivedChange(std::int64_t minutes, std::string kind,
                                                        Instant at) {
    return {uuid(1), at, minutes, " note ", std::move(kind), at, at};
}

} // namespace

TEST_F(ArchiveMerge, TakesTheNewerCopyAndCountsAll) {
    insertChange(before, 10, uuid(1));
    insertChange(before, 20, uuid(2)).setModifiedAt(now);
    insertChange(before, 30, uuid(3));
    TimeBankArchive archive;
    archive.balanceAdjustments = {
        archivedChange(11, "manual", before + 1), archivedChange(21, "manual", before),
        archivedChange(31, "manual", before), archivedChange(41, "manual", before)};
    for (std::uint8_t i = 0; i < 4; ++i) {
        archive.balanceAdjustments[i].id = uuid(i + 1);
    }
    EXPECT_EQ(merge(archive), (TimeBankArchiveMergeResult{1, 1, 2}));
    std::vector<std::int64_t> minutes;
    for (const auto& record : stored().balanceAdjustments) {
        minutes.push_back(record.minutes);
    }
    std::ranges::sort(minutes);
    EXPECT_EQ(minutes, (std::vector<std::int64_t>{11, 20, 30, 41}));
}

TEST_F(ArchiveMerge, BringsChangesIntoTheirRanges) {
    struct Row {
        std::int64_t minutes;
        const char* kind;
        std::int64_t expectedMinutes;
        const char* expectedKind;
    };
    constexpr Row rows[] = {
        {5'000, "holiday", 1'440, "holiday"},
        {-5, "holiday", 0, "holiday"},
        {5, "longLunch", 0, "longLunch"},
        {-70'000, "bogus", -60'000, "manual"},
        {-5'000, "custom:IEd5bSA=", -1'440, "custom:R3lt"},
    };
    for (const bool isKnown : {false, true}) {
        for (const Row& row : rows) {
            SCOPED_TRACE(row.kind);
            DataStoreMaintenance::eraseAll(*context);
            if (isKnown) {
                insertChange(before, 1, uuid(1));
            }
            TimeBankArchive archive;
            archive.balanceAdjustments = {archivedChange(row.minutes, row.kind, before + 1)};
            merge(archive);
            const auto record = stored().balanceAdjustments.at(0);
            EXPECT_EQ(record.minutes, row.expectedMinutes);
            EXPECT_EQ(record.kind, row.expectedKind);
            EXPECT_EQ(record.note, "note");
            EXPECT_EQ(record.modifiedAt, before + 1);
        }
    }
}

TEST_F(ArchiveMerge, BringsTimesAndWorkInOrder) {
    struct Row {
        const char* name;
        std::optional<Instant> endedAt;
        Instant modifiedAt;
        Instant expectedEnd;
        Instant expectedModifiedAt;
        Instant exportedAt;
    };
    const Instant start = now - 2 * hour;
    const Instant recently = now - hour;
    const Row rows[] = {
        {"ended", start + minute, start, start + minute, start, recently},
        {"running ends with the export", std::nullopt, start, recently, start, recently},
        {"running since after the export", std::nullopt, start, start, start, start - hour},
        {"end before the start is repaired", start - 1, start, start, now, recently},
        {"a little ahead", start, now + 4 * minute, start, now + 4 * minute, recently},
        {"too far ahead", start, now + 10 * minute, start, now, recently},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        DataStoreMaintenance::eraseAll(*context);
        TimeBankArchive archive;
        archive.exportedAt = row.exportedAt;
        archive.workEntries = {{uuid(1), start, row.endedAt, 300, "", now + day, row.modifiedAt}};
        EXPECT_EQ(merge(archive).inserted, 1);
        const auto entry = stored().workEntries.at(0);
        EXPECT_EQ(entry.endedAt, row.expectedEnd);
        EXPECT_EQ(entry.modifiedAt, row.expectedModifiedAt);
        EXPECT_LE(entry.createdAt, entry.modifiedAt);
        EXPECT_EQ(entry.breakMinutes, 240);
    }
}

TEST_F(ArchiveMerge, AnEndBeforeTheStartDoesNotTouchTheTimeOfAReplacedEntry) {
    context->insert(std::make_unique<WorkEntry>(uuid(1), before, before, 0, "", before, before));
    TimeBankArchive archive;
    archive.workEntries = {{uuid(1), now, before, 0, "", before, before + 1}};
    EXPECT_EQ(merge(archive).updated, 1);
    EXPECT_EQ(stored().workEntries.at(0).endedAt, now);
    EXPECT_EQ(stored().workEntries.at(0).modifiedAt, before + 1);
}

TEST_F(ArchiveMerge, AbsentSettingsAreTheDefaults) {
    TimeBankArchive archive;
    archive.settings = {{.id = uuid(9),
                         .calculationStartDate = berlin(1, 1),
                         .startingBalanceMinutes = 70'000,
                         .weekdayMinutes = {1, 2, 3, 4, 5, 6, 2'000},
                         .hasCompletedOnboarding = false,
                         .modifiedAt = before}};
    merge(archive);
    TimeBankArchive::SettingsRecord expected = archive.settings[0];
    expected.startingBalanceMinutes = 60'000;
    expected.weekdayMinutes.back() = 1'440;
    expected.quickActionMinutes = {15, 30, 60, 120};
    expected.visibleAdjustmentKindsRawValue = "appointment,personalErrands,longLunch,other";
    expected.customAdjustmentCategoriesRawValue = "[]";
    EXPECT_EQ(stored().settings, std::vector{expected});

    archive.settings[0].modifiedAt = before + 1;
    archive.settings[0].customAdjustmentCategoriesRawValue = R"(["Gym"])";
    EXPECT_EQ(merge(archive).updated, 1);
    EXPECT_EQ(stored().settings.at(0).customAdjustmentCategoriesRawValue, R"(["Gym"])");
}

TEST_F(ArchiveMerge, ReducesTheStoresOwnDuplicates) {
    insertChange(before, 1, uuid(1));
    insertChange(before, 2, uuid(1)).setModifiedAt(before + 1);
    insertChange(before, 3, uuid(2)).setModifiedAt({-62'135'596'800.0});
    context->insert(std::make_unique<WorkEntry>(uuid(1), now, std::nullopt, 0, "", now, now));
    context->insert(std::make_unique<WorkEntry>(uuid(2), before, std::nullopt, 0, "", now, now));
    EXPECT_EQ(merge({}).total(), 0);
    const TimeBankArchive left = stored();
    ASSERT_EQ(left.balanceAdjustments.size(), 1U);
    EXPECT_EQ(left.balanceAdjustments[0].minutes, 2);
    ASSERT_EQ(left.workEntries.size(), 1U);
    EXPECT_EQ(left.workEntries[0].id, uuid(2));
}

TEST_F(ArchiveMerge, SavesOnceAndOnlyWhatIsNew) {
    merge({});
    int commits = 0;
    const auto registration = store->onCommit([&commits] { ++commits; });
    TimeBankArchive archive;
    archive.balanceAdjustments.assign(2, archivedChange(1, "manual", before));
    EXPECT_THROW(merge(archive), TimeBankArchiveError);
    EXPECT_FALSE(context->hasChanges());

    archive.balanceAdjustments[1].id = uuid(2);
    EXPECT_EQ(merge(archive), (TimeBankArchiveMergeResult{2, 0, 0}));
    EXPECT_EQ(commits, 1);
    EXPECT_EQ(merge(archive), (TimeBankArchiveMergeResult{0, 0, 2}));
    EXPECT_EQ(commits, 1);
}

TEST_F(ArchiveMerge, OfRandomTimeBanksKeepsEveryRule) {
    for (unsigned seed = 0; seed < 25; ++seed) {
        SCOPED_TRACE(seed);
        DataStoreMaintenance::eraseAll(*context);
        RandomTimeBank random(seed, now);
        insertRaw(random.archive());
        insertRaw(random.archive());
        const TimeBankArchive archive = random.archive();
        const TimeBankArchiveMergeResult result = merge(archive);
        EXPECT_EQ(result.total(), static_cast<std::int64_t>(archive.recordCount()));

        TimeBankArchive once = stored();
        ASSERT_NO_THROW(once.validate());
        EXPECT_EQ(once.settings.size(), 1U);
        for (const WorkEntry* entry : context->fetch<WorkEntry>()) {
            EXPECT_FALSE(ActivityRepair::repaired(entry->values(), now));
        }
        for (const BalanceAdjustment* record : context->fetch<BalanceAdjustment>()) {
            EXPECT_FALSE(ActivityRepair::repaired(record->values(), now));
        }
        merge(archive);
        ASSERT_EQ(stored().encodedJSON(), once.encodedJSON());

        DataStoreMaintenance::eraseAll(*context);
        merge(TimeBankArchive::decodeJSON(once.encodedJSON()));
        ASSERT_EQ(stored().encodedJSON(), once.encodedJSON());
    }
}

} // namespace quillmere::test
