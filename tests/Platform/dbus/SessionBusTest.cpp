#include "Platform/dbus/SessionBus.h"

#include <gtest/gtest.h>
#include <stdlib.h>
#include <systemd/sd-bus.h>

#include <array>
#include <csignal>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <map>
#include <memory>
#include <string>
#include <thread>
#include <vector>

namespace platform::dbus {
namespace {

namespace fs = std::filesystem;

/// What a call was answered: an error's name and words, or "number".
struct Answer {
    std::int64_t number = 0;
    std::string error;
    std::string words;
};

/// A caller that waits for its answers, through plain sd-bus.
class Caller {
public:
    Caller() { ::sd_bus_open_user(&bus_); }
    ~Caller() { ::sd_bus_flush_close_unref(bus_); }
    Caller(const Caller&) = delete;
    Caller& operator=(const Caller&) = delete;

    Answer call(const char* method, const char* signature, std::int64_t number = 0) {
        sd_bus_error error{};
        sd_bus_message* reply = nullptr;
        Answer answer;
        const int result = ::sd_bus_call_method(bus_, "test.Restless", "/test", "test.Interface",
                                                method, &error, &reply, signature, number);
        if (result < 0) {
            answer.error = error.name;
            answer.words = error.message;
        } else {
            ::sd_bus_message_read_basic(reply, 'x', &answer.number);
        }
        ::sd_bus_message_unref(reply);
        ::sd_bus_error_free(&error);
        return answer;
    }

private:
    sd_bus* bus_ = nullptr;
};

/// A bus of the test's own that starts the restless service.
class SessionBusTest : public testing::Test {
protected:
    void SetUp() override {
        std::string pattern = (fs::temp_directory_path() / "bus-XXXXXX").string();
        folder_ = ::mkdtemp(pattern.data());
        fs::create_directories(folder_ / "dbus-1/services");
        std::ofstream(folder_ / "dbus-1/services/test.Restless.service")
            << "[D-BUS Service]\nName=test.Restless\nExec=" RESTLESS_SERVICE " " << notes().string()
            << "\n";
        const std::string command = "XDG_DATA_HOME=" + folder_.string() +
                                    " dbus-daemon --session --fork --print-address=1 --print-pid=1"
                                    " --address=unix:dir=" +
                                    folder_.string();
        const std::unique_ptr<FILE, int (*)(FILE*)> daemon(::popen(command.c_str(), "r"), ::pclose);
        std::array<char, 300> address{};
        std::array<char, 30> process{};
        ASSERT_TRUE(std::fgets(address.data(), address.size(), daemon.get()));
        ASSERT_TRUE(std::fgets(process.data(), process.size(), daemon.get()));
        address.at(std::strcspn(address.data(), "\n")) = '\0';
        daemon_ = std::stoi(process.data());
        ::setenv("DBUS_SESSION_BUS_ADDRESS", address.data(), 1);
    }

    ~SessionBusTest() override {
        endBus();
        std::error_code busRemovesItsSocketItself;
        fs::remove_all(folder_, busRemovesItsSocketItself);
    }

    void endBus() {
        if (daemon_ > 0) {
            ::kill(std::exchange(daemon_, 0), SIGTERM);
        }
    }

    [[nodiscard]] fs::path notes() const { return folder_ / "notes"; }

    /// How often each line was noted.
    [[nodiscard]] std::map<std::string, int> noted() const {
        std::map<std::string, int> lines;
        std::ifstream file(notes());
        for (std::string line; std::getline(file, line);) {
            ++lines[line];
        }
        return lines;
    }

private:
    fs::path folder_;
    int daemon_ = 0;
};

TEST_F(SessionBusTest, NoCallIsLostOrDoubledWhileTheProgramKeepsEnding) {
    constexpr std::int64_t callers = 4;
    constexpr std::int64_t callsEach = 60;
    std::vector<std::thread> threads;
    for (std::int64_t caller = 0; caller < callers; ++caller) {
        threads.emplace_back([caller] {
            Caller bus;
            for (std::int64_t i = 0; i < callsEach; ++i) {
                const std::int64_t number = caller * callsEach + i;
                const Answer answer = bus.call("Note", "x", number);
                EXPECT_EQ(answer.number, number) << answer.error << ": " << answer.words;
                // Now and then the program is left long enough to begin to end.
                std::this_thread::sleep_for(std::chrono::microseconds(number % 7 * 500));
            }
        });
    }
    for (std::thread& thread : threads) {
        thread.join();
    }
    auto lines = noted();
    EXPECT_GT(lines["start"], 5) << "the program hardly ever ended";
    lines.erase("start");
    EXPECT_EQ(lines.size(), callers * callsEach);
    for (const auto& [line, count] : lines) {
        EXPECT_EQ(count, 1) << line;
    }
}

TEST_F(SessionBusTest, FailuresAreAnsweredInWords) {
    Caller bus;
    const Answer refused = bus.call("Refuse", "");
    EXPECT_EQ(refused.error, "test.Error.Refused");
    EXPECT_EQ(refused.words, "Refused by \xEF\xBF\xBD name.");
    const Answer failed = bus.call("Fail", "");
    EXPECT_EQ(failed.error, "org.freedesktop.DBus.Error.Failed");
    EXPECT_EQ(failed.words, "Out of luck.");
}

TEST_F(SessionBusTest, ANameHasOneOwnerUntilItIsGivenBack) {
    SessionBus first;
    SessionBus second;
    EXPECT_TRUE(first.own("test.Name"));
    EXPECT_FALSE(second.own("test.Name"));
    first.serve(std::chrono::milliseconds{0});
    EXPECT_TRUE(second.own("test.Name"));
}

TEST_F(SessionBusTest, ServingEndsWithTheBus) {
    SessionBus bus;
    ASSERT_TRUE(bus.own("test.Name"));
    endBus();
    bus.serve(std::chrono::hours{1});
}

TEST_F(SessionBusTest, ABusThatIsNotThereIsTold) {
    ::setenv("DBUS_SESSION_BUS_ADDRESS", "unix:path=/nowhere", 1);
    try {
        const SessionBus bus;
        FAIL() << "connected to nothing";
    } catch (const BusError& error) {
        EXPECT_EQ(error.fault(), BusFault::unreachable);
    }
}

} // namespace
} // namespace platform::dbus
