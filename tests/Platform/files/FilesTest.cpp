#include "Platform/files/Files.h"

#include "tests/Platform/files/TestFolder.h"

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <functional>

using namespace platform;

namespace {

namespace fs = std::filesystem;

std::size_t entriesIn(const fs::path& folder) {
    return static_cast<std::size_t>(
        std::distance(fs::directory_iterator(folder), fs::directory_iterator()));
}

std::optional<FileError::Kind> failureOf(const std::function<void()>& action) {
    try {
        action();
    } catch (const FileError& error) {
        return error.kind();
    }
    return std::nullopt;
}

/// Writes `first` and `second` in turn until it is killed, a byte to `progress` behind each pair.
[[noreturn]] void writeForever(const fs::path& file, const std::string& first,
                               const std::string& second, int progress) {
    for (;;) {
        writeFileAtomically(file, first, privateFileMode);
        writeFileAtomically(file, second, privateFileMode);
        (void)!::write(progress, "", 1);
    }
}

} // namespace

TEST(Files, ReplacesAFileWithExactlyTheModeAndLeavesNothingElse) {
    const TestFolder folder;
    const fs::path file = folder.path() / "file";
    for (const std::string& bytes : {std::string("first"), std::string(), std::string(200000, 'x'),
                                     std::string(65536, '\0')}) {
        writeFileAtomically(file, bytes, bytes.empty() ? 0666 : privateFileMode);
        EXPECT_EQ(readFile(file, TestFolder::enough), bytes);
        EXPECT_EQ(TestFolder::modeOf(file), bytes.empty() ? 0666U : 0600U);
        EXPECT_EQ(entriesIn(folder.path()), 1U);
    }
}

TEST(Files, ReplacesALinkAndNotWhatItPointsTo) {
    const TestFolder folder;
    writeFileAtomically(folder.path() / "target", "kept", privateFileMode);
    fs::create_symlink("target", folder.path() / "link");
    writeFileAtomically(folder.path() / "link", "new", privateFileMode);
    EXPECT_EQ(readFile(folder.path() / "target", TestFolder::enough), "kept");
    EXPECT_FALSE(fs::is_symlink(folder.path() / "link"));
}

TEST(Files, FailuresHaveAKind) {
    const TestFolder folder;
    const fs::path file = folder.path() / "file";
    writeFileAtomically(file, "1234", privateFileMode);
    const std::pair<FileError::Kind, std::function<void()>> rows[] = {
        {FileError::Kind::notFound,
         [&] { (void)readFile(folder.path() / "none", TestFolder::enough); }},
        {FileError::Kind::notFound, [&] { (void)readFile(file / "below", TestFolder::enough); }},
        {FileError::Kind::notFound,
         [&] { writeFileAtomically(folder.path() / "none" / "file", "", privateFileMode); }},
        {FileError::Kind::tooLarge, [&] { (void)readFile(file, 3); }},
        {FileError::Kind::other, [&] { (void)readFile(folder.path(), TestFolder::enough); }},
        {FileError::Kind::other, [&] { createPrivateFolder(file); }},
    };
    for (const auto& [kind, action] : rows) {
        EXPECT_EQ(failureOf(action), kind);
    }
    EXPECT_EQ(readFile(file, 4), "1234");
    EXPECT_GT(readFile("/proc/self/maps", TestFolder::enough).size(), 0U)
        << "a file that reports no size";
}

TEST(Files, CreatesMissingFoldersPrivatelyAndLeavesOthersAlone) {
    const TestFolder folder;
    fs::create_directory(folder.path() / "open");
    fs::permissions(folder.path() / "open", fs::perms(0755));
    createPrivateFolder(folder.path() / "open" / "a" / "b");
    createPrivateFolder(folder.path() / "open" / "a" / "b");
    EXPECT_EQ(TestFolder::modeOf(folder.path() / "open"), 0755U);
    EXPECT_EQ(TestFolder::modeOf(folder.path() / "open" / "a"), 0700U);
    EXPECT_EQ(TestFolder::modeOf(folder.path() / "open" / "a" / "b"), 0700U);
}

TEST(Files, AFullOrReadOnlyDiskLeavesTheOldFile) {
    const TestFolder folder;
    if (!mountSmallDisk(folder.path())) {
        GTEST_SKIP() << "mounting a small disk is not permitted here";
    }
    const fs::path file = folder.path() / "file";
    const auto write = [&](std::size_t size) {
        writeFileAtomically(file, std::string(size, 'n'), privateFileMode);
    };
    writeFileAtomically(file, "old", privateFileMode);
    EXPECT_EQ(failureOf([&] { write(TestFolder::enough); }), FileError::Kind::diskFull);
    EXPECT_EQ(readFile(file, TestFolder::enough), "old");
    EXPECT_EQ(entriesIn(folder.path()), 1U);

    ASSERT_TRUE(makeReadOnly(folder.path()));
    EXPECT_EQ(failureOf([&] { write(1); }), FileError::Kind::noPermission);
    EXPECT_EQ(failureOf([&] { createPrivateFolder(folder.path() / "new"); }),
              FileError::Kind::noPermission);
    EXPECT_NO_THROW(createPrivateFolder(folder.path()));
    EXPECT_EQ(readFile(file, TestFolder::enough), "old");
}

TEST(Files, ReadersSeeAWholeFileWhileItIsReplacedAndAfterItsWriterIsKilled) {
    const TestFolder folder;
    const fs::path file = folder.path() / "file";
    const std::string first(300000, '1');
    const std::string second(100000, '2');
    const auto isWhole = [&] {
        const std::string found = readFile(file, TestFolder::enough);
        return found == first || found == second;
    };
    for (int round = 0; round < 5; ++round) {
        int progress[2] = {};
        ASSERT_EQ(::pipe(progress), 0);
        const pid_t child = ::fork();
        if (child == 0) {
            writeForever(file, first, second, progress[1]);
        }
        ::close(progress[1]);
        char byte = 0;
        EXPECT_EQ(::read(progress[0], &byte, 1), 1);
        for (int reading = 0; reading < 200; ++reading) {
            EXPECT_TRUE(isWhole());
        }
        ::kill(child, SIGKILL);
        ::waitpid(child, nullptr, 0);
        ::close(progress[0]);
        EXPECT_TRUE(isWhole());
    }
}
