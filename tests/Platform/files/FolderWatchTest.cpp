#include "Platform/files/FolderWatch.h"

#include "Platform/files/Files.h"
#include "tests/Platform/files/TestFolder.h"

#include <gtest/gtest.h>
#include <poll.h>

#include <fstream>

using namespace platform;

namespace {

namespace fs = std::filesystem;

bool isReadable(const FolderWatch& watch) {
    pollfd poll{watch.fd(), POLLIN, 0};
    return ::poll(&poll, 1, 0) == 1;
}

void touch(const fs::path& path) {
    std::ofstream(path) << "x";
}

} // namespace

// The kernel queues an event before the call that caused it returns, so nothing here has to wait.

TEST(FolderWatch, TellsTheNamesOfWhatChanged) {
    const TestFolder folder;
    touch(folder.path() / "old");
    FolderWatch watch(folder.path());
    EXPECT_FALSE(isReadable(watch));
    EXPECT_TRUE(watch.drain().empty());

    touch(folder.path() / "created");
    fs::remove(folder.path() / "old");
    writeFileAtomically(folder.path() / "replaced", "1", privateFileMode);
    EXPECT_TRUE(isReadable(watch));
    const FolderChanges changes = watch.drain();
    EXPECT_TRUE(changes.concern("created") && changes.concern("old") &&
                changes.concern("replaced"));
    EXPECT_FALSE(changes.concern("other"));
    EXPECT_FALSE(isReadable(watch));

    std::ofstream kept(folder.path() / "created", std::ios::app);
    EXPECT_TRUE(watch.drain().empty()) << "opening changes nothing";
    kept << "more" << std::flush;
    EXPECT_TRUE(watch.drain().concern("created")) << "while its writer keeps it open";
}

TEST(FolderWatch, FollowsAFolderThatComesAndGoes) {
    const TestFolder parent;
    const fs::path folder = parent.path() / "a" / "b";
    FolderWatch watch(folder);
    EXPECT_FALSE(fs::exists(parent.path() / "a"));

    fs::create_directory(parent.path() / "unrelated");
    EXPECT_TRUE(watch.drain().empty());
    fs::create_directories(folder);
    touch(folder / "early");
    EXPECT_TRUE(watch.drain().isEverything) << "appeared, both levels at once";
    touch(folder / "file");
    EXPECT_EQ(watch.drain().names, std::set<std::string>{"file"});

    fs::remove_all(parent.path() / "a");
    EXPECT_TRUE(watch.drain().isEverything) << "went away";
    fs::create_directories(folder);
    EXPECT_TRUE(watch.drain().isEverything) << "recreated";

    fs::rename(folder, parent.path() / "moved");
    fs::create_directory(folder);
    EXPECT_TRUE(watch.drain().isEverything) << "another one in its place";
    touch(parent.path() / "moved" / "file");
    EXPECT_TRUE(watch.drain().empty());
    touch(folder / "file");
    EXPECT_TRUE(watch.drain().concern("file"));
}

TEST(FolderWatch, NoticesAFolderRecreatedLevelByLevel) {
    const TestFolder parent;
    const fs::path folder = parent.path() / "a" / "b";
    FolderWatch watch(folder);
    for (int round = 0; round < 2; ++round) {
        fs::create_directory(parent.path() / "a");
        EXPECT_FALSE(watch.drain().isEverything);
        fs::create_directory(folder);
        EXPECT_TRUE(watch.drain().isEverything);
        fs::remove(folder);
        fs::remove(parent.path() / "a");
        EXPECT_TRUE(watch.drain().isEverything);
    }
}
