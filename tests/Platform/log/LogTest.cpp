#include "Platform/base/UniqueFd.h"
#include "Platform/log/MemoryLogSink.h"
#include "tests/Platform/files/TestFolder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/socket.h>
#include <sys/un.h>

#include <array>
#include <cstdlib>
#include <filesystem>

using namespace platform;

TEST(Log, HidesPrivateTextsUnlessTheyAreSwitchedOn) {
    MemoryLogSink sink;
    const Log log(sink, "dev.example", "Persistence");
    log.write(LogLevel::standard, "Public only.");
    // NOLINTBEGIN(concurrency-mt-unsafe): one thread
    for (const char* setting : {"0", "1", "yes"}) {
        ::setenv("QUILLMERE_LOG_PRIVATE", setting, 1);
        log.write(LogLevel::error, "Store unavailable: ", PrivateText{"secret"});
    }
    ::unsetenv("QUILLMERE_LOG_PRIVATE");
    // NOLINTEND(concurrency-mt-unsafe)
    log.write(LogLevel::fault, "Title: ", PrivateText{"secret"});

    using Entry = MemoryLogSink::Entry;
    const auto entry = [](LogLevel level, const char* message) {
        return Entry{"dev.example", "Persistence", level, message};
    };
    EXPECT_THAT(sink.entries(),
                testing::ElementsAre(entry(LogLevel::standard, "Public only."),
                                     entry(LogLevel::error, "Store unavailable: <private>"),
                                     entry(LogLevel::error, "Store unavailable: secret"),
                                     entry(LogLevel::error, "Store unavailable: <private>"),
                                     entry(LogLevel::fault, "Title: <private>")));
}

TEST(Log, GoesToTheJournalOrElseToStandardError) {
    if (!mountSmallDisk("/run")) {
        GTEST_SKIP() << "replacing /run for this process is not permitted here";
    }
    SystemLogSink sink;
    testing::internal::CaptureStderr();
    sink.write({"dev.example", "Widget", LogLevel::standard, "no journal"});
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "<5> dev.example Widget: no journal\n");

    std::filesystem::create_directories("/run/systemd/journal");
    const UniqueFd journal(::socket(AF_UNIX, SOCK_DGRAM | SOCK_CLOEXEC, 0));
    sockaddr_un address{AF_UNIX, "/run/systemd/journal/socket"};
    ASSERT_EQ(::bind(journal.get(), reinterpret_cast<sockaddr*>(&address), sizeof address), 0);

    testing::internal::CaptureStderr();
    sink.write({"dev.example", "Widget", LogLevel::error, "went wrong"});
    sink.write({"dev.example", "Widget", LogLevel::fault, "two\nlines"});
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
    const auto receive = [&] {
        std::array<char, 4096> buffer{};
        const auto size = ::recv(journal.get(), buffer.data(), buffer.size(), MSG_DONTWAIT);
        return size < 0 ? std::string() : std::string(buffer.data(), static_cast<size_t>(size));
    };
    EXPECT_EQ(receive(), "MESSAGE=went wrong\nPRIORITY=3\nSUBSYSTEM=dev.example\n"
                         "CATEGORY=Widget\nSYSLOG_IDENTIFIER=quillmere\n");
    const std::string second = receive();
    EXPECT_THAT(second, testing::HasSubstr("two\nlines"));
    EXPECT_THAT(second, testing::HasSubstr("PRIORITY=2\n"));
}
