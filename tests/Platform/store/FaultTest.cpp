#include "tests/Platform/store/FaultyVfs.h"
#include "tests/Platform/store/StoreTest.h"

#include <array>

namespace platform::store::test {
namespace {

using faultyVfs::Fault;

constexpr const char* stored = "changed kept removed";
constexpr const char* changed = "edited inserted kept";

/// What a process would find that starts after this one was killed: the file and its log as they
/// are now, without the index beside it.
std::string recovered(const std::filesystem::path& file) {
    const TestFolder folder;
    const std::filesystem::path copy = folder.path() / "copy.sqlite";
    for (const char* suffix : {"", "-wal"}) {
        if (std::filesystem::exists(file.string() + suffix)) {
            std::filesystem::copy_file(file.string() + suffix, copy.string() + suffix);
        }
    }
    const auto store = Store::open(testSchema(), {.file = copy});
    store->verify();
    const auto context = store->makeContext(environment());
    return titles(*context) + "/" + context->note("state").value_or("");
}

/// How the log stands before the save under test, and how large that save is.
struct FaultCase {
    const char* name;
    bool logIsWarm;
    int records;
    int stride; ///< from one operation tried to the next
};

void PrintTo(const FaultCase& row, std::ostream* out) {
    *out << row.name;
}

class FaultTest : public StoreTest, public testing::WithParamInterface<FaultCase> {
protected:
    void SetUp() override {
        faultyVfs::install();
        const auto context = openContext();
        addReminder(*context, "kept");
        addReminder(*context, "changed");
        addReminder(*context, "removed");
        context->setNote("state", "stored");
        context->save();
    }

    /// Makes the changes pending whose save is tried.
    static void change(Context& context) {
        findTitle(context, "changed")->setTitle("edited");
        context.remove(*findTitle(context, "removed"));
        addReminder(context, "inserted");
        for (int i = 0; i < GetParam().records; ++i) {
            auto tag = std::make_unique<Tag>();
            tag->setName(std::string(1000, 'x'));
            context.insert(std::move(tag));
        }
        context.setNote("state", "changed");
    }

    /// Saves with the operation of this number failing, once for each way on from there; answers
    /// whether there was such an operation.
    bool tryFailing(Fault fault, int operation, bool andAllLater, bool thenRollback) {
        TestFolder folder;
        const std::filesystem::path file = folder.path() / "Test.sqlite";
        std::filesystem::copy_file(this->file(), file);
        const auto store = Store::open(testSchema(), {.file = file, .vfs = faultyVfs::name});
        const auto context = store->makeContext(environment());
        if (GetParam().logIsWarm) {
            context->insert(std::make_unique<Tag>());
            context->save();
        }
        change(*context);

        faultyVfs::arm(fault, operation, andAllLater);
        const std::optional<StoreFault> failure = faultOf([&] { context->save(); });
        const bool wasReached = faultyVfs::disarm() >= operation;

        EXPECT_EQ(titles(*context), changed);
        EXPECT_EQ(context->hasChanges(), failure.has_value());
        if (failure) {
            EXPECT_EQ(*failure, expected(fault, *failure));
            EXPECT_EQ(titles(*store->makeContext(environment())), stored);
            if (!andAllLater) {
                EXPECT_EQ(recovered(file), std::string(stored) + "/stored");
            }
            goOn(*context, file, thenRollback);
        } else {
            EXPECT_EQ(titles(*store->makeContext(environment())), changed);
            EXPECT_EQ(recovered(file), std::string(changed) + "/changed");
        }
        return wasReached;
    }

    /// After the failure has passed, the save is repeated, or given up and another one made.
    static void goOn(Context& context, const std::filesystem::path& file, bool thenRollback) {
        if (thenRollback) {
            context.rollback();
            EXPECT_EQ(titles(context), stored);
            addReminder(context, "other");
        }
        context.save();
        EXPECT_EQ(recovered(file), thenRollback ? "changed kept other removed/stored"
                                                : std::string(changed) + "/changed");
    }

    static StoreFault expected(Fault fault, StoreFault failure) {
        switch (fault) {
        case Fault::diskFull:
            return StoreFault::diskFull;
        case Fault::readOnly:
            return StoreFault::readOnly;
        default:
            return failure == StoreFault::cannotOpen ? failure : StoreFault::io;
        }
    }

    void tryAll(Fault fault, bool andAllLater) {
        int operation = 1;
        bool thenRollback = false;
        for (bool wasReached = true; wasReached; operation += GetParam().stride) {
            SCOPED_TRACE("operation " + std::to_string(operation));
            wasReached = tryFailing(fault, operation, andAllLater, thenRollback);
            thenRollback = !thenRollback;
            ASSERT_FALSE(HasFailure());
        }
        EXPECT_GT(operation, 5) << "the save was not seen to do anything";
    }
};

TEST_P(FaultTest, ASaveFailsWholeOnAnIoError) {
    tryAll(Fault::ioError, false);
}

TEST_P(FaultTest, ASaveFailsWholeOnAFullDisk) {
    tryAll(Fault::diskFull, false);
}

TEST_P(FaultTest, ASaveFailsWholeOnAFileSystemTurnedReadOnly) {
    tryAll(Fault::readOnly, false);
}

TEST_P(FaultTest, ASaveRecoversFromADiskThatStaysFull) {
    tryAll(Fault::diskFull, true);
}

INSTANTIATE_TEST_SUITE_P(Logs, FaultTest,
                         testing::Values(FaultCase{"NewLog", false, 0, 1},
                                         FaultCase{"LogWithFrames", true, 0, 1},
                                         FaultCase{"WithCheckpoint", true, 4500, 397}),
                         [](const auto& row) { return row.param.name; });

} // namespace
} // namespace platform::store::test
