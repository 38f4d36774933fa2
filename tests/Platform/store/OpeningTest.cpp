#include "Platform/store/Snapshot.h"
#include "tests/Platform/store/StoreTest.h"

#include <sqlite3.h>
#include <sys/mount.h>
#include <sys/stat.h>
#include <sys/wait.h>

#include <functional>
#include <map>
#include <ostream>
#include <sstream>

namespace platform::store::test {
namespace {

/// Runs SQL on a file, behind the store's back.
void execute(const std::filesystem::path& file, const std::string& sql) {
    sqlite3* database = nullptr;
    ASSERT_EQ(sqlite3_open(file.c_str(), &database), SQLITE_OK);
    EXPECT_EQ(sqlite3_exec(database, sql.c_str(), nullptr, nullptr, nullptr), SQLITE_OK) << sql;
    sqlite3_close(database);
}

void overwrite(const std::filesystem::path& file, std::streamoff offset, std::size_t size) {
    std::fstream stream(file, std::ios::binary | std::ios::in | std::ios::out);
    stream.seekp(offset);
    stream << std::string(size, '\xa5');
}

/// Every file of the folder with its contents.
std::map<std::string, std::string> folderContents(const std::filesystem::path& folder) {
    std::map<std::string, std::string> files;
    for (const auto& entry : std::filesystem::directory_iterator(folder)) {
        files[entry.path().filename()] = contents(entry.path());
    }
    return files;
}

/// A store's file that was spoilt in some way, and the fault it is refused with.
struct RefusalCase {
    const char* name;
    void (*spoil)(const std::filesystem::path& file);
    StoreFault fault;
};

void PrintTo(const RefusalCase& row, std::ostream* out) {
    *out << row.name;
}

const std::vector<RefusalCase> refusals = {
    {"OtherApplication", [](const auto& file) { execute(file, "PRAGMA application_id = 7"); },
     StoreFault::foreign},
    {"OtherDatabase",
     [](const auto& file) {
         std::filesystem::remove(file);
         execute(file, "CREATE TABLE theirs (a)");
     },
     StoreFault::foreign},
    {"NewerSchema", [](const auto& file) { execute(file, "PRAGMA user_version = 2"); },
     StoreFault::newerSchema},
    {"NoDatabase",
     [](const auto& file) { std::ofstream(file) << "Dear diary, " << std::string(200, '.'); },
     StoreFault::damaged},
    {"Snippet", [](const auto& file) { std::ofstream(file) << "SQLite"; }, StoreFault::damaged},
    {"Truncated",
     [](const auto& file) {
         std::filesystem::resize_file(file, std::filesystem::file_size(file) - 4096);
     },
     StoreFault::damaged},
    {"CutWithinAPage",
     [](const auto& file) {
         std::filesystem::resize_file(file, std::filesystem::file_size(file) - 1);
     },
     StoreFault::damaged},
    {"HeaderOverwritten", [](const auto& file) { overwrite(file, 0, 100); }, StoreFault::damaged},
    {"PageSizeOverwritten", [](const auto& file) { overwrite(file, 16, 2); }, StoreFault::damaged},
    {"SchemaOverwritten", [](const auto& file) { overwrite(file, 100, 3996); },
     StoreFault::damaged},
    {"TableMissing", [](const auto& file) { execute(file, "DROP TABLE reminder"); },
     StoreFault::damaged},
    {"ColumnMissing",
     [](const auto& file) { execute(file, "ALTER TABLE reminder DROP COLUMN title"); },
     StoreFault::damaged},
    {"OwnRowMissing", [](const auto& file) { execute(file, "DELETE FROM store_meta"); },
     StoreFault::damaged},
};

class RefusalTest : public StoreTest, public testing::WithParamInterface<RefusalCase> {};

TEST_P(RefusalTest, RefusesTheFileAndLeavesNoTrace) {
    {
        const auto context = openContext();
        addReminder(*context, "a");
        context->save();
    }
    GetParam().spoil(file());
    const auto before = folderContents(file().parent_path());
    EXPECT_EQ(faultOf([&] { (void)open(); }), GetParam().fault);
    EXPECT_EQ(folderContents(file().parent_path()), before);
}

INSTANTIATE_TEST_SUITE_P(Files, RefusalTest, testing::ValuesIn(refusals),
                         [](const auto& row) { return row.param.name; });

class OpeningTest : public StoreTest {
protected:
    /// A store of 400 records with its log moved into the file.
    void fill() const {
        const auto context = openContext();
        for (int i = 0; i < 400; ++i) {
            addReminder(*context, "reminder " + std::to_string(i));
        }
        context->save();
    }

    /// Runs an action in a child process and answers what it answers.
    static int inChild(const std::function<int()>& action) {
        const pid_t child = ::fork();
        if (child == 0) {
            ::_exit(action());
        }
        int status = 0;
        ::waitpid(child, &status, 0);
        return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    }

    static int exitCode(const std::optional<StoreFault>& fault) {
        return fault ? static_cast<int>(*fault) : 100;
    }
};

TEST_F(OpeningTest, KeepsItsFilesToItsUser) {
    const auto context = openContext();
    addReminder(*context, "a");
    context->save();
    const auto mode = [](const std::filesystem::path& path) {
        return static_cast<unsigned>(std::filesystem::status(path).permissions());
    };
    EXPECT_EQ(mode(file().parent_path()), 0700U);
    for (const char* suffix : {"", "-wal", "-shm"}) {
        EXPECT_EQ(mode(file().string() + suffix), 0600U) << suffix;
    }
}

TEST_F(OpeningTest, KeepsItsIdentity) {
    const Uuid id = open()->id();
    EXPECT_EQ(open()->id(), id);
    EXPECT_NE(Store::open(testSchema(), {.inMemory = true})->id(), id);
}

TEST_F(OpeningTest, FollowsALinkToWhereTheStoreIs) {
    fill();
    const TestFolder elsewhere;
    const std::filesystem::path link = elsewhere.path() / "link.sqlite";
    std::filesystem::create_symlink(file(), link);
    const auto store = Store::open(testSchema(), {.file = link});
    const auto watch = store->watchCommits();
    const auto context = openContext();
    addReminder(*context, "by its own name");
    context->save();
    EXPECT_TRUE(watch->drain());
    EXPECT_NE(findTitle(*store->makeContext(environment()), "by its own name"), nullptr);
    EXPECT_EQ(folderContents(elsewhere.path()).size(), 1U) << "the log is beside the file";
}

TEST_F(OpeningTest, RefusesAPipeWithoutWaitingForIt) {
    std::filesystem::create_directory(file().parent_path());
    ASSERT_EQ(::mkfifo(file().c_str(), 0600), 0);
    EXPECT_EQ(faultOf([&] { (void)open(); }), StoreFault::cannotOpen);
}

TEST_F(OpeningTest, NewerSchemaStillInTheLogIsRefusedAndLeftThere) {
    fill();
    const TestFolder copies;
    const std::filesystem::path copy = copies.path() / "copy.sqlite";
    {
        const auto newer = Store::open(testSchema(2).addMigration(1, {}), {.file = file()});
        for (const char* suffix : {"", "-wal", "-shm"}) {
            std::filesystem::copy_file(file().string() + suffix, copy.string() + suffix);
        }
    }
    const auto before = folderContents(copies.path());
    EXPECT_EQ(faultOf([&] { (void)Store::open(testSchema(), {.file = copy}); }),
              StoreFault::newerSchema);
    auto after = folderContents(copies.path());
    EXPECT_EQ(after["copy.sqlite"], before.at("copy.sqlite"));
    EXPECT_EQ(after["copy.sqlite-wal"], before.at("copy.sqlite-wal"));
}

TEST_F(OpeningTest, DamageFoundLaterEndsAllSaving) {
    fill();
    // All pages but the first, which opening reads, and those before the end of the index roots.
    const auto size = std::filesystem::file_size(file());
    overwrite(file(), static_cast<std::streamoff>(size / 2), size / 2);
    const std::string before = contents(file());
    {
        const auto store = open();
        const auto context = store->makeContext(environment());
        EXPECT_EQ(faultOf([&] { (void)context->fetch<Reminder>(); }), StoreFault::damaged);
        context->insert(std::make_unique<Tag>());
        EXPECT_EQ(faultOf([&] { context->save(); }), StoreFault::damaged);
        EXPECT_TRUE(context->hasChanges());

        const auto other = open();
        EXPECT_EQ(faultOf([&] { other->verify(); }), StoreFault::damaged);
        const auto late = other->makeContext(environment());
        late->insert(std::make_unique<Tag>());
        EXPECT_EQ(faultOf([&] { late->save(); }), StoreFault::damaged);
    }
    EXPECT_EQ(contents(file()), before);
}

TEST_F(OpeningTest, FileOfAnotherUserIsReadOnly) {
    fill();
    std::filesystem::permissions(folder_.path(), std::filesystem::perms(0755));
    std::filesystem::permissions(file().parent_path(), std::filesystem::perms(0755));
    std::filesystem::permissions(file(), std::filesystem::perms(0444));
    const int code = inChild([&] {
        if (::getuid() == 0 && ::setuid(65534) != 0) {
            return 101;
        }
        return exitCode(faultOf([&] { (void)open(); }));
    });
    EXPECT_EQ(code, exitCode(StoreFault::readOnly));
}

TEST_F(OpeningTest, FolderThatCannotBeMade) {
    std::ofstream(folder_.path() / "data") << "a file in the way";
    EXPECT_EQ(faultOf([&] { (void)open(); }), StoreFault::cannotOpen);
}

TEST_F(OpeningTest, FileSystemThatFillsUpAndIsReadOnlyLater) {
    const int code = inChild([&] {
        const char* place = folder_.path().c_str();
        if (::unshare(CLONE_NEWNS) != 0 || ::mount("none", place, "tmpfs", 0, "size=400k") != 0) {
            return 101; // not allowed here
        }
        auto context = openContext();
        addReminder(*context, "stored");
        context->save();
        std::optional<StoreFault> full;
        for (int i = 0; i < 1000 && !full; ++i) {
            addReminder(*context, std::string(4000, 'x'));
            full = faultOf([&] { context->save(); });
        }
        context->rollback();
        if (full != StoreFault::diskFull || findTitle(*context, "stored") == nullptr) {
            return 102;
        }
        context.reset();
        if (::mount("none", place, "tmpfs", MS_REMOUNT | MS_RDONLY, "size=400k") != 0) {
            return 103;
        }
        return exitCode(faultOf([&] { (void)open(); }));
    });
    if (code == 101) {
        GTEST_SKIP() << "mounting is not allowed here";
    }
    EXPECT_EQ(code, exitCode(StoreFault::readOnly));
}

TEST_F(OpeningTest, FileThatWasDeletedMeanwhile) {
    const auto context = openContext();
    addReminder(*context, "would be lost");
    std::filesystem::remove(file());
    EXPECT_EQ(faultOf([&] { context->save(); }), StoreFault::io);
    EXPECT_TRUE(context->hasChanges());
}

TEST_F(OpeningTest, StoreThatAnotherKeepsLocked) {
    fill();
    const auto store = Store::open(testSchema(), {.file = file(), .busyTimeoutMilliseconds = 20});
    const auto context = store->makeContext(environment());
    findTitle(*context, "reminder 1")->setMinutes(1);
    sqlite3* other = nullptr;
    ASSERT_EQ(sqlite3_open(file().c_str(), &other), SQLITE_OK);
    ASSERT_EQ(sqlite3_exec(other, "BEGIN IMMEDIATE", nullptr, nullptr, nullptr), SQLITE_OK);
    EXPECT_EQ(faultOf([&] { context->save(); }), StoreFault::locked);
    EXPECT_TRUE(context->hasChanges());
    sqlite3_close(other);
    context->save();
    EXPECT_EQ(findTitle(*openContext(), "reminder 1")->values().minutes, 1);
}

/// The reminder of an earlier version of the program, which had no more than a title.
struct OldValues {
    Uuid id = Uuid::random();
    std::string title;
};

} // namespace
} // namespace platform::store::test

template <>
struct platform::store::RecordFields<platform::store::test::OldValues> {
    using V = test::OldValues;
    static constexpr std::string_view table = "reminder";
    static constexpr auto fields = std::tuple{Field{"id", &V::id}, Field{"title", &V::title}};
};

namespace platform::store::test {
namespace {

class OldReminder final : public Record<OldValues> {
public:
    explicit OldReminder(OldValues values = {}) : Record(std::move(values)) {}
};

class MigrationTest : public StoreTest {
protected:
    void SetUp() override {
        context_->insert(std::make_unique<OldReminder>(OldValues{Uuid::random(), "old"}));
        context_->save();
    }

    std::shared_ptr<Store> openNewer(std::vector<std::string> lastStep) const {
        return Store::open(testSchema(3)
                               .addMigration(1, {"ALTER TABLE reminder ADD COLUMN minutes INTEGER "
                                                 "NOT NULL DEFAULT 5",
                                                 "ALTER TABLE reminder ADD COLUMN is_done INTEGER "
                                                 "NOT NULL DEFAULT 1"})
                               .addMigration(2, std::move(lastStep)),
                           {.file = file()});
    }

    const Schema oldSchema_ = Schema{testApplicationId, 1}.add<OldReminder>();
    const std::unique_ptr<Context> context_ =
        Store::open(oldSchema_, {.file = file()})->makeContext(environment());
};

TEST_F(MigrationTest, MovesAnOlderFileOnInPlace) {
    Snapshot reading(context_->store());
    const auto store = openNewer({"ALTER TABLE reminder ADD COLUMN due ANY NOT NULL DEFAULT 7.0",
                                  "ALTER TABLE reminder ADD COLUMN ended_at ANY"});
    const auto context = store->makeContext(environment());
    const auto reminders = context->fetch<Reminder>();
    ASSERT_EQ(reminders.size(), 1U);
    EXPECT_EQ(reminders[0]->values().title, "old");
    EXPECT_EQ(reminders[0]->values().minutes, 5);
    EXPECT_TRUE(reminders[0]->values().isDone);
    EXPECT_EQ(reminders[0]->values().due, Instant{7});
    context->insert(std::make_unique<Tag>());
    context->save();
    EXPECT_EQ(openNewer({})->makeContext(environment())->fetch<Tag>().size(), 1U);

    EXPECT_EQ(faultOf([&] { (void)Store::open(oldSchema_, {.file = file()}); }),
              StoreFault::newerSchema);
    EXPECT_EQ(reading.database().integer("SELECT count(*) FROM reminder"), 1);
    EXPECT_EQ(context_->fetch<OldReminder>().size(), 1U) << "a program that has it open may read";
    context_->insert(std::make_unique<OldReminder>());
    EXPECT_EQ(faultOf([&] { context_->save(); }), StoreFault::newerSchema)
        << "a program that still has it open must not write into it";
}

TEST_F(MigrationTest, ChangesNothingWhenAStepFails) {
    EXPECT_TRUE(faultOf([&] { (void)openNewer({"ALTER TABLE missing ADD COLUMN a"}); }));
    EXPECT_EQ(context_->fetch<OldReminder>().size(), 1U);
    const auto context = Store::open(oldSchema_, {.file = file()})->makeContext(environment());
    context->insert(std::make_unique<OldReminder>());
    context->save();
    EXPECT_EQ(context->fetch<OldReminder>().size(), 2U);
}

} // namespace
} // namespace platform::store::test
