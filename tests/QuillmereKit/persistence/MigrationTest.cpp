#include "QuillmereKit/maintenance/StorePreparation.h"
#include "tests/Platform/files/TestFolder.h"
#include "tests/QuillmereKit/KitTest.h"

#include <sqlite3.h>

#include <filesystem>
#include <fstream>
#include <iterator>

namespace quillmere::test {

namespace {

/// Runs SQL texts on a file; answers what they say, columns joined by bars.
std::string run(const std::filesystem::path& file, const std::string& sql) {
    sqlite3* database = nullptr;
    EXPECT_EQ(sqlite3_open(file.c_str(), &database), SQLITE_OK);
    std::string answer;
    const auto keep = [](void* to, int columns, char** values, char**) {
        for (int i = 0; i < columns; ++i) {
            *static_cast<std::string*>(to) += std::string(values[i] ? values[i] : "") + '|';
        }
        return 0;
    };
    EXPECT_EQ(sqlite3_exec(database, sql.c_str(), keep, &answer, nullptr), SQLITE_OK);
    sqlite3_close(database);
    return answer;
}

TEST(Migration, MovesAStoreOfVersion1_0_0OnToWhatANewOneIs) {
    const TestFolder folder;
    const std::filesystem::path file = folder.path() / "Quillmere.sqlite";
    std::ifstream dump(OLD_STORE);
    run(file, {std::istreambuf_iterator<char>(dump), {}});
    const auto changes = [&] { return run(file, "SELECT * FROM balance_adjustment"); };
    const std::string before = changes();

    const auto store =
        QuillmerePersistence::makeContainer(false, false, false, {folder.path(), {}});
    EXPECT_EQ(store->id().text(), "8CD39803-1309-4AEB-AFC9-6AC72D2E7132");
    EXPECT_EQ(changes(), before);
    EXPECT_EQ(run(file, "PRAGMA user_version; PRAGMA journal_mode; PRAGMA integrity_check;"
                        "SELECT revision FROM store_meta"),
              "2|wal|ok|5|");
    const platform::ManualClock clock{berlin(12, 1)};
    const platform::FixedCalendarSource calendars{berlinCalendar};
    const auto context = store->makeContext({clock, calendars});
    EXPECT_TRUE(StorePreparation::prepare(*context).hasCompletedOnboarding());
    EXPECT_EQ((context->sum<BalanceAdjustment, &BalanceAdjustmentValues::minutes>()), 18);

    const std::filesystem::path fresh = folder.path() / "fresh.sqlite";
    (void)platform::store::Store::open(QuillmerePersistence::schema(), {.file = fresh});
    const char* schema = "SELECT type, name, sql FROM sqlite_schema ORDER BY name";
    EXPECT_EQ(run(file, schema), run(fresh, schema));
}

} // namespace

} // namespace quillmere::test
