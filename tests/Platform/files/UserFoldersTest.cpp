#include "Platform/files/UserFolders.h"

#include "tests/Platform/files/TestFolder.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <cstdlib>

using platform::FileError;
using platform::UserFolders;

namespace {

namespace fs = std::filesystem;

void setVariable(const char* name, const char* value) {
    value != nullptr ? ::setenv(name, value, 1) : ::unsetenv(name);
}

} // namespace

TEST(UserFolders, FollowTheEnvironment) {
    struct Row {
        const char* name;
        const char* value; ///< of XDG_DATA_HOME and XDG_CONFIG_HOME
        fs::path data;
        fs::path configuration;
    };
    const Row rows[] = {
        {"unset", nullptr, "/home/someone/.local/share", "/home/someone/.config"},
        {"empty", "", "/home/someone/.local/share", "/home/someone/.config"},
        {"relative", "data", "/home/someone/.local/share", "/home/someone/.config"},
        {"absolute", "/elsewhere", "/elsewhere", "/elsewhere"},
    };
    setVariable("HOME", "/home/someone");
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        setVariable("XDG_DATA_HOME", row.value);
        setVariable("XDG_CONFIG_HOME", row.value);
        const auto folders = UserFolders::ofEnvironment();
        EXPECT_EQ(folders.data(), row.data);
        EXPECT_EQ(folders.configuration(), row.configuration);
    }
    setVariable("HOME", nullptr);
    setVariable("XDG_DATA_HOME", nullptr);
    EXPECT_TRUE(UserFolders::ofEnvironment().data().is_absolute());
}

TEST(UserFolders, TemporaryFolderIsTheGivenOneOrOnesOwn) {
    const TestFolder folder;
    const std::string name = folder.path().filename();
    const fs::path own = "/tmp/" + name + "-" + std::to_string(::geteuid());

    setVariable("TMPDIR", folder.path().c_str());
    EXPECT_EQ(UserFolders::ofEnvironment().temporary(name), folder.path());
    EXPECT_FALSE(fs::exists(own));

    for (const char* unusable : {static_cast<const char*>(nullptr), "", "tmp", "/nonexistent"}) {
        setVariable("TMPDIR", unusable);
        EXPECT_EQ(UserFolders::ofEnvironment().temporary(name), own);
    }
    setVariable("TMPDIR", nullptr);
    EXPECT_TRUE(fs::remove(own));
}

TEST(UserFolders, ClaimsOnlyAFolderOfTheUser) {
    const TestFolder folder;
    const fs::path place = folder.path() / "place";
    const auto isClaimed = [&] {
        try {
            platform::claimPrivateFolder(place);
            return true;
        } catch (const FileError&) {
            return false;
        }
    };

    fs::create_directory_symlink(folder.path(), place);
    EXPECT_FALSE(isClaimed()) << "a link";
    fs::remove(place);

    fs::create_directory(place);
    fs::permissions(place, fs::perms(0777));
    EXPECT_TRUE(isClaimed());
    EXPECT_EQ(fs::status(place).permissions(), fs::perms(0700));

    if (::chown(place.c_str(), 12345, static_cast<gid_t>(-1)) != 0) {
        GTEST_SKIP() << "only root can give a folder away";
    }
    EXPECT_FALSE(isClaimed()) << "another user's folder";
}
