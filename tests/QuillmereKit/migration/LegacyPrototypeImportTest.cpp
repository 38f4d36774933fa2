#include "QuillmereKit/migration/LegacyPrototypeImport.h"

#include "Platform/preferences/MemoryPreferences.h"
#include "tests/QuillmereKit/KitTest.h"

namespace quillmere::test {

namespace {

constexpr const char* firstId = "00000000-0000-0000-0000-000000000001";

std::string entry(const std::string& id, const std::string& minutes = "30",
                  const std::string& date = "0", const std::string& note = "\"\"") {
    return R"({"id":")" + id + R"(","minutes":)" + minutes + R"(,"date":)" + date + R"(,"note":)" +
           note + "}";
}

TEST(LegacyPrototypeImport, ReadsThePrototypesEntries) {
    const auto entries = LegacyPrototypeImport::decode(
        "[" + entry("c4d2b7e9-0b4a-4c2a-9d6e-0000000000ff", "-5000", "86400.5", "\" a\\nb \"") +
        "," + entry(firstId) + "]");
    ASSERT_EQ(entries.size(), 2u);
    EXPECT_EQ(entries[0],
              (LegacyBalanceEntry{Uuid::parse("C4D2B7E9-0B4A-4C2A-9D6E-0000000000FF").value(),
                                  -5000, Instant{978'393'600.5}, " a\nb "}));
    EXPECT_EQ(entries[1].date, Instant{978'307'200});
    EXPECT_TRUE(LegacyPrototypeImport::decode("[]").empty());
}

TEST(LegacyPrototypeImport, RefusesWhatIsNotAListOfWholeEntries) {
    const std::string rows[] = {
        "",
        "{}",
        "[1]",
        "[" + entry("not-a-uuid") + "]",
        "[" + entry(firstId, "\"30\"") + "]",
        "[" + entry(firstId, "1.5") + "]",
        "[" + entry(firstId, "30", "\"now\"") + "]",
        "[" + entry(firstId, "30", "0", "null") + "]",
        R"([{"id":"00000000-0000-0000-0000-000000000001","minutes":1,"date":0}])",
    };
    for (const std::string& row : rows) {
        EXPECT_THROW(static_cast<void>(LegacyPrototypeImport::decode(row)), LegacyPrototypeError)
            << row;
    }
}

class LegacyRunTest : public StoreTest {
protected:
    void run() { LegacyPrototypeImport::run(*context, standard, prototype); }
    [[nodiscard]] bool isDone() const {
        return standard.boolean("legacyPrototypeMigration.v1").value_or(false);
    }

    platform::MemoryPreferences standard;
    platform::MemoryPreferences prototype;
};

TEST_F(LegacyRunTest, ImportsWhatTheStoreDoesNotKnowOnceAndAsItIs) {
    insertChange(now, 7, uuid(1));
    context->save();
    prototype.setData("timeEntries", "[" + entry(firstId) + "," +
                                         entry(uuid(2).text(), "5000", "60", "\" n \"") + "," +
                                         entry(uuid(3).text()) + "]");
    run();
    EXPECT_TRUE(isDone());
    const auto fresh = makeContext();
    EXPECT_EQ(fresh->fetch<BalanceAdjustment>().size(), 3u);
    const auto changes = fresh->fetch<BalanceAdjustment>(
        platform::store::Filter<BalanceAdjustment>{}.where<&BalanceAdjustmentValues::id>(
            platform::store::Comparison::equal, uuid(2)));
    ASSERT_EQ(changes.size(), 1u);
    EXPECT_EQ(changes[0]->values(),
              (BalanceAdjustmentValues{uuid(2), {978'307'260}, 5000, " n ", "manual", now, now}));
    context->removeAll<BalanceAdjustment>();
    context->save();
    run();
    EXPECT_TRUE(context->fetch<BalanceAdjustment>().empty());
}

TEST_F(LegacyRunTest, IsDoneWhereThereIsNothingToImport) {
    run();
    EXPECT_TRUE(isDone());
    standard.remove("legacyPrototypeMigration.v1");
    prototype.setString("timeEntries", "[" + entry(firstId) + "]");
    run();
    EXPECT_TRUE(isDone());
    EXPECT_TRUE(context->fetch<BalanceAdjustment>().empty());
}

TEST_F(LegacyRunTest, TriesAgainAfterAFailure) {
    prototype.setData("timeEntries", "[" + entry(firstId) + ",3]");
    EXPECT_THROW(run(), LegacyPrototypeError);
    EXPECT_FALSE(isDone());
    EXPECT_FALSE(context->hasChanges());
    prototype.setData("timeEntries", "[" + entry(firstId) + "]");
    run();
    EXPECT_TRUE(isDone());
    EXPECT_EQ(context->fetch<BalanceAdjustment>().size(), 1u);
}

} // namespace

} // namespace quillmere::test
