#include "Platform/files/Files.h"
#include "Platform/preferences/FilePreferences.h"
#include "Platform/preferences/MemoryPreferences.h"
#include "tests/Platform/files/TestFolder.h"

#include <gtest/gtest.h>
#include <poll.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <limits>

using namespace std::string_literals;
using namespace platform;

namespace {

namespace fs = std::filesystem;

class FilePreferencesTest : public testing::Test {
protected:
    [[nodiscard]] std::string fileText() const { return readFile(file_, TestFolder::enough); }
    void writeFile(std::string_view text) const {
        createPrivateFolder(domain_);
        writeFileAtomically(file_, text, privateFileMode);
    }

    TestFolder folder_;
    fs::path domain_ = folder_.path() / "config" / "dev.example";
    fs::path file_ = domain_ / "preferences.json";
    FilePreferences preferences_{domain_};
};

bool isReadable(int fd) {
    pollfd poll{fd, POLLIN, 0};
    return ::poll(&poll, 1, 0) == 1;
}

void keepTypedValues(Preferences& preferences) {
    int changes = 0;
    preferences.onChange([&] { ++changes; });
    EXPECT_TRUE(preferences.empty());
    EXPECT_TRUE(preferences.remove("absent"));

    const std::string bytes = "\0\xFF\x01"s;
    EXPECT_TRUE(preferences.setBoolean("boolean", false));
    EXPECT_TRUE(preferences.setNumber("number", 30.25));
    EXPECT_TRUE(preferences.setString("string", "caf\xC3\xA9 \"/\""));
    EXPECT_TRUE(preferences.setData("data", bytes));
    EXPECT_TRUE(preferences.setBoolean("boolean", false)) << "unchanged";
    EXPECT_EQ(changes, 4);

    EXPECT_EQ(preferences.boolean("boolean"), false);
    EXPECT_EQ(preferences.number("number"), 30.25);
    EXPECT_EQ(preferences.string("string"), "caf\xC3\xA9 \"/\"");
    EXPECT_EQ(preferences.data("data"), bytes);
    EXPECT_FALSE(preferences.number("boolean") || preferences.boolean("number"));
    EXPECT_FALSE(preferences.data("string") || preferences.string("data"));

    EXPECT_FALSE(preferences.setNumber("number", std::numeric_limits<double>::quiet_NaN()));
    EXPECT_EQ(preferences.number("number"), 30.25);
    EXPECT_TRUE(preferences.setString("number", "now a string"));
    EXPECT_FALSE(preferences.number("number"));

    EXPECT_TRUE(preferences.remove("string"));
    EXPECT_FALSE(preferences.contains("string") || preferences.empty());
    EXPECT_EQ(changes, 6);
}

} // namespace

TEST_F(FilePreferencesTest, KeepsTypedValues) {
    keepTypedValues(preferences_);
    EXPECT_EQ(FilePreferences(domain_).boolean("boolean"), false);
}

TEST(MemoryPreferences, KeepsTypedValues) {
    MemoryPreferences preferences;
    keepTypedValues(preferences);
    preferences.setFailing(true);
    EXPECT_FALSE(preferences.setBoolean("boolean", true) || preferences.remove("boolean"));
    EXPECT_EQ(preferences.boolean("boolean"), false);
}

TEST_F(FilePreferencesTest, StoresPlainJsonPrivately) {
    EXPECT_TRUE(preferences_.setNumber("days", 30));
    EXPECT_TRUE(preferences_.setData("bytes", "foo"));
    EXPECT_EQ(fileText(), "{\n  \"days\": 30,\n  \"bytes\": {\n    \"data\": \"Zm9v\"\n  }\n}\n");
    EXPECT_EQ(fs::status(file_).permissions(), fs::perms(0600));
    EXPECT_EQ(fs::status(domain_).permissions(), fs::perms(0700));
}

TEST_F(FilePreferencesTest, ReadingAndWatchingCreateNothing) {
    EXPECT_FALSE(preferences_.contains("timeEntries") || preferences_.data("timeEntries"));
    EXPECT_TRUE(preferences_.remove("timeEntries"));
    EXPECT_GE(preferences_.watchFd(), 0);
    EXPECT_FALSE(fs::exists(domain_.parent_path()));
}

TEST_F(FilePreferencesTest, ValuesOfOtherShapesReadAsAbsentAndSurvive) {
    const std::string other =
        R"("list":[1,{"a":null}],"nothing":null,"two":{"data":"Zg==","more":1},)"
        R"("bad":{"data":"?"},"large":9007199254740993)";
    writeFile("{" + other + "}");
    for (const char* key : {"list", "nothing", "two", "bad"}) {
        SCOPED_TRACE(key);
        EXPECT_TRUE(preferences_.contains(key));
        EXPECT_FALSE(preferences_.data(key) || preferences_.string(key) ||
                     preferences_.number(key) || preferences_.boolean(key));
    }
    EXPECT_TRUE(preferences_.setBoolean("own", true));
    std::string text;
    json::Writer(text).value(json::parse(fileText()).root());
    EXPECT_EQ(text, "{" + other + R"(,"own":true})");
}

TEST_F(FilePreferencesTest, KeepsADamagedFileAside) {
    const std::pair<const char*, std::string> rows[] = {
        {"cut off", R"({"a":tr)"},
        {"not an object", "[1]"},
        {"empty", ""},
    };
    for (const auto& [name, text] : rows) {
        SCOPED_TRACE(name);
        fs::remove_all(domain_);
        writeFile(text);
        EXPECT_TRUE(preferences_.empty());
        EXPECT_EQ(fileText(), text) << "reading repairs nothing";
        EXPECT_TRUE(preferences_.setBoolean("a", true));
        EXPECT_EQ(preferences_.boolean("a"), true);
        std::string kept = "nothing";
        for (const auto& entry : fs::directory_iterator(domain_)) {
            if (entry.path().filename().string().starts_with("damaged-")) {
                kept = readFile(entry.path(), TestFolder::enough);
            }
        }
        EXPECT_EQ(kept, text);
    }
}

TEST_F(FilePreferencesTest, NeverReplacesAFileItCannotRead) {
    createPrivateFolder(domain_);
    ASSERT_EQ(::mkfifo(file_.c_str(), 0600), 0);
    EXPECT_FALSE(preferences_.contains("a"));
    EXPECT_FALSE(preferences_.setBoolean("a", true) || preferences_.remove("a"));
    EXPECT_TRUE(fs::is_fifo(file_));
}

TEST_F(FilePreferencesTest, SeesWhatOthersWroteAndTellsTheListener) {
    FilePreferences other(domain_);
    int changes = 0;
    preferences_.onChange([&] { ++changes; });
    const int fd = preferences_.watchFd();
    EXPECT_FALSE(isReadable(fd));

    // Same length each time, at once: only the identity of the file can tell.
    for (int value = 1; value <= 5; ++value) {
        EXPECT_TRUE(other.setNumber("value", value));
        EXPECT_EQ(preferences_.number("value"), value);
    }
    EXPECT_TRUE(isReadable(fd));
    preferences_.processChanges();
    EXPECT_EQ(changes, 1) << "although the reads have seen the changes before";
    EXPECT_FALSE(isReadable(fd));

    EXPECT_TRUE(preferences_.setString("own", "x"));
    EXPECT_EQ(changes, 2);
    preferences_.processChanges();
    EXPECT_EQ(changes, 2) << "its own change is no news";

    fs::remove_all(domain_);
    preferences_.processChanges();
    EXPECT_EQ(changes, 3);
    EXPECT_TRUE(preferences_.empty());
}

TEST_F(FilePreferencesTest, ProcessesNeverLoseEachOthersKeys) {
    constexpr int keys = 60;
    std::vector<pid_t> children;
    for (const char* name : {"a", "b", "c"}) {
        children.push_back(::fork());
        if (children.back() == 0) {
            bool isStored = true;
            for (int key = 0; key < keys; ++key) {
                isStored = preferences_.setNumber(name + std::to_string(key), key) && isStored;
            }
            ::_exit(isStored ? 0 : 1);
        }
    }
    for (const pid_t child : children) {
        int status = -1;
        ::waitpid(child, &status, 0);
        EXPECT_EQ(status, 0);
    }
    for (int key = 0; key < keys; ++key) {
        for (const char* name : {"a", "b", "c"}) {
            EXPECT_EQ(preferences_.number(name + std::to_string(key)), key);
        }
    }
}

TEST_F(FilePreferencesTest, AFullOrReadOnlyDiskChangesNothing) {
    if (!mountSmallDisk(folder_.path())) {
        GTEST_SKIP() << "mounting a small disk is not permitted here";
    }
    int changes = 0;
    EXPECT_TRUE(preferences_.setString("kept", "old"));
    preferences_.onChange([&] { ++changes; });
    EXPECT_FALSE(preferences_.setString("kept", std::string(TestFolder::enough, 'x')));
    EXPECT_EQ(preferences_.string("kept"), "old");

    ASSERT_TRUE(makeReadOnly(folder_.path()));
    EXPECT_FALSE(preferences_.setString("kept", "new") || preferences_.remove("kept"));
    EXPECT_FALSE(FilePreferences(folder_.path() / "another").setBoolean("a", true));
    EXPECT_EQ(preferences_.string("kept"), "old");
    EXPECT_EQ(FilePreferences(domain_).string("kept"), "old");
    EXPECT_TRUE(preferences_.setString("kept", "old")) << "it is stored already";
    EXPECT_EQ(changes, 0);
}
