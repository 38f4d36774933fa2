#include "Quillmere/shell/AppModelContainer.h"

#include "Platform/log/MemoryLogSink.h"
#include "tests/Quillmere/shell/FakeStoreOpener.h"

#include <gmock/gmock.h>

#include <cstdlib>
#include <ostream>

namespace quillmere {
namespace {

using platform::LogLevel;
using testing::ElementsAreArray;
using Entry = platform::MemoryLogSink::Entry;

struct Row {
    const char* name;
    bool cloudKit;
    bool appGroup;
    std::set<std::string> failing;
    std::vector<std::string> attempts;
    PersistenceMode mode;
    std::vector<std::pair<LogLevel, std::string>> log;
};

const std::string unentitled = "CloudKit entitlements are unavailable; using local storage.";
const std::string cloudFailed = "Cloud-backed store unavailable: cloud fails";
const std::string localFailed = "Persistent store unavailable: local fails";
const std::string memoryFailed = "Emergency in-memory store unavailable: memory fails";

const std::vector<Row> launches{
    {"synchronised", true, true, {}, {"cloud shared"}, PersistenceMode::iCloud, {}},
    {"cloud fails",
     true,
     true,
     {"cloud"},
     {"cloud shared", "local shared"},
     PersistenceMode::localOnly,
     {{LogLevel::error, cloudFailed}}},
    {"unprovisioned",
     false,
     false,
     {},
     {"local"},
     PersistenceMode::localOnly,
     {{LogLevel::standard, unentitled}}},
    {"disk fails",
     false,
     true,
     {"local"},
     {"local shared", "memory shared"},
     PersistenceMode::temporary,
     {{LogLevel::standard, unentitled}, {LogLevel::error, localFailed}}},
    {"everything fails",
     true,
     false,
     {"cloud", "local", "memory"},
     {"cloud shared", "local", "memory shared"},
     PersistenceMode::unavailable,
     {{LogLevel::error, cloudFailed},
      {LogLevel::error, localFailed},
      {LogLevel::fault, memoryFailed}}},
};

class LaunchTest : public testing::TestWithParam<Row> {};

TEST_P(LaunchTest, TriesAndLogsInOrder) {
    setenv("QUILLMERE_LOG_PRIVATE", "1", 1);
    const Row& row = GetParam();
    FakeStoreOpener opener;
    opener.cloudKit = row.cloudKit;
    opener.appGroup = row.appGroup;
    opener.failing = row.failing;
    platform::MemoryLogSink log;

    const AppModelContainer::Result result = AppModelContainer(opener, log).make();

    EXPECT_EQ(result.mode, row.mode);
    EXPECT_EQ(result.container == nullptr, row.mode == PersistenceMode::unavailable);
    EXPECT_THAT(opener.attempts, ElementsAreArray(row.attempts));
    std::vector<Entry> expected;
    for (const auto& [level, message] : row.log) {
        expected.push_back({"dev.vantor.quillmere", "Persistence", level, message});
    }
    EXPECT_EQ(log.entries(), expected);
}

void PrintTo(const Row& row, std::ostream* out) {
    *out << row.name;
}

INSTANTIATE_TEST_SUITE_P(AppModelContainer, LaunchTest, testing::ValuesIn(launches));

TEST(AppModelContainerTest, HidesTheReasonOfAFailureFromTheLog) {
    unsetenv("QUILLMERE_LOG_PRIVATE");
    FakeStoreOpener opener;
    opener.failing = {"cloud"};
    platform::MemoryLogSink log;
    (void)AppModelContainer(opener, log).make();
    ASSERT_EQ(log.entries().size(), 1U);
    EXPECT_EQ(log.entries()[0].message, "Cloud-backed store unavailable: <private>");
}

} // namespace
} // namespace quillmere
