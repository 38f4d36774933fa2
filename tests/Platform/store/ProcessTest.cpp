#include "Platform/store/LiveQuery.h"
#include "tests/Platform/store/StoreTest.h"

#include <fcntl.h>
#include <poll.h>
#include <signal.h>
#include <sys/wait.h>

#include <array>
#include <cstdio>
#include <random>
#include <set>
#include <sstream>
#include <thread>

namespace platform::store::test {
namespace {

/// The helper program, which saves reminders one by one and tells of each.
class Helper {
public:
    Helper(const std::filesystem::path& file, const std::string& prefix, int count) {
        std::array<int, 2> input{};
        std::array<int, 2> output{};
        EXPECT_EQ(::pipe2(input.data(), O_CLOEXEC), 0);
        EXPECT_EQ(::pipe2(output.data(), O_CLOEXEC), 0);
        const std::string number = std::to_string(count);
        child_ = ::fork();
        if (child_ == 0) {
            ::dup2(input[0], STDIN_FILENO);
            ::dup2(output[1], STDOUT_FILENO);
            ::execl(STORE_HELPER, STORE_HELPER, file.c_str(), prefix.c_str(), number.c_str(),
                    nullptr);
            ::_exit(127);
        }
        ::close(input[0]);
        ::close(output[1]);
        input_ = input[1];
        output_ = ::fdopen(output[0], "r");
    }
    ~Helper() {
        (void)wait();
        ::close(input_);
        std::fclose(output_);
    }
    Helper(const Helper&) = delete;
    Helper& operator=(const Helper&) = delete;

    void start() {
        EXPECT_EQ(readLine(), "open");
        EXPECT_EQ(::write(input_, "\n", 1), 1);
    }

    /// The title of the next reminder that was saved; empty at the end.
    std::string readLine() {
        std::array<char, 64> line{};
        if (std::fgets(line.data(), line.size(), output_) == nullptr) {
            return {};
        }
        std::string text = line.data();
        return text.substr(0, text.find('\n'));
    }

    void kill() const { ::kill(child_, SIGKILL); }

    int wait() {
        int status = -1;
        if (child_ > 0) {
            ::waitpid(std::exchange(child_, -1), &status, 0);
        }
        return status;
    }

private:
    pid_t child_ = -1;
    int input_ = -1;
    FILE* output_ = nullptr;
};

std::multiset<std::string> titleSet(Context& context) {
    std::multiset<std::string> all;
    context.scan<Reminder>({}, [&](RowKey, const ReminderValues& v) { all.insert(v.title); });
    return all;
}

struct PlainRow {
    RowRef ref;
    static std::optional<PlainRow> make(RowRef ref, const ReminderValues&) { return PlainRow{ref}; }
    friend bool operator<(const PlainRow&, const PlainRow&) { return false; }
    friend bool operator==(const PlainRow&, const PlainRow&) = default;
};

class ProcessTest : public StoreTest {
protected:
    static void save(Context& context, const std::string& prefix, int count) {
        for (int i = 0; i < count; ++i) {
            addReminder(context, prefix + std::to_string(i), 1);
            context.save();
        }
    }
};

TEST_F(ProcessTest, ConcurrentSavesOfThreadsAndProcessesLoseNothing) {
    constexpr int count = 60;
    const auto store =
        Store::open(testSchema(), {.file = file(), .busyTimeoutMilliseconds = 60000});
    const auto context = store->makeContext(environment());
    addReminder(*context, "shared");
    context->save();
    LiveQuery<Reminder, PlainRow> query(*context);
    query.load();
    {
        Helper first(file(), "p", count);
        Helper second(file(), "q", count);
        first.start();
        second.start();
        std::thread thread([&] { save(*store->makeContext(environment()), "t", count); });
        save(*context, "m", count);
        thread.join();
        EXPECT_EQ(first.wait(), 0);
        EXPECT_EQ(second.wait(), 0);
    }
    context->refresh();

    std::multiset<std::string> expected{"shared"};
    for (const char* prefix : {"p", "q", "t", "m"}) {
        for (int i = 0; i < count; ++i) {
            expected.insert(prefix + std::to_string(i));
        }
    }
    EXPECT_EQ(titleSet(*context), expected);
    EXPECT_EQ(query.size(), expected.size());
    EXPECT_EQ(context->revision(), Revision{1 + 4 * count})
        << "each save has a revision of its own";
    EXPECT_EQ(findTitle(*context, "shared")->values().minutes, count - 1);
}

TEST_F(ProcessTest, ProcessesThatCreateAStoreTogetherShareIt) {
    for (int round = 0; round < 5; ++round) {
        std::filesystem::remove_all(file().parent_path());
        std::array<Helper, 3> helpers{{{file(), "a", 3}, {file(), "b", 3}, {file(), "c", 3}}};
        for (Helper& helper : helpers) {
            helper.start();
        }
        for (Helper& helper : helpers) {
            EXPECT_EQ(helper.wait(), 0);
        }
        EXPECT_EQ(titles(*openContext()), "a0 a1 a2 b0 b1 b2 c0 c1 c2");
    }
}

TEST_F(ProcessTest, ContextsInMemoryWorkOnSeveralThreads) {
    const auto store =
        Store::open(testSchema(), {.inMemory = true, .busyTimeoutMilliseconds = 60000});
    const auto work = [&](const std::string& prefix) {
        const auto context = store->makeContext(environment());
        for (int i = 0; i < 100; ++i) {
            addReminder(*context, prefix + std::to_string(i), 1);
            context->save();
            (void)titleSet(*context);
        }
    };
    std::thread one(work, "a");
    std::thread two(work, "b");
    work("c");
    one.join();
    two.join();
    EXPECT_EQ(titleSet(*store->makeContext(environment())).size(), 300U);
}

TEST_F(ProcessTest, AWatchTellsOfAnotherProcessesCommit) {
    const auto store = open();
    const auto context = store->makeContext(environment());
    const auto watch = store->watchCommits();
    EXPECT_FALSE(watch->drain());
    Helper helper(file(), "other", 1);
    helper.start();
    while (findTitle(*context, "other0") == nullptr || context->revision() == Revision::none) {
        pollfd event{watch->fd(), POLLIN, 0};
        ASSERT_EQ(::poll(&event, 1, 20000), 1) << "nothing was reported";
        if (watch->drain()) {
            context->refresh();
        }
    }
    EXPECT_EQ(context->revision(), Revision{1});
}

TEST_F(ProcessTest, KillingLosesNoAcknowledgedSaveAndDamagesNothing) {
    std::mt19937 random(1);
    std::multiset<std::string> expected{"shared"};
    {
        const auto context = openContext();
        addReminder(*context, "shared");
        context->save();
    }
    for (int round = 0; round < 25; ++round) {
        SCOPED_TRACE(round);
        Helper helper(file(), std::to_string(round) + ".", 1000000);
        helper.start();
        std::set<std::string> acknowledged;
        const int saves = std::uniform_int_distribution(1, 40)(random);
        for (int i = 0; i < saves; ++i) {
            acknowledged.insert(helper.readLine());
        }
        std::this_thread::sleep_for(
            std::chrono::microseconds(std::uniform_int_distribution(0, 2000)(random)));
        helper.kill();
        (void)helper.wait();
        for (std::string line = helper.readLine(); line.find('.') != std::string::npos;
             line = helper.readLine()) {
            acknowledged.insert(line);
        }

        const auto store = open();
        store->verify();
        const auto found = titleSet(*store->makeContext(environment()));
        for (const std::string& title : acknowledged) {
            EXPECT_EQ(found.count(title), 1U) << title << " was acknowledged";
        }
        expected.insert(acknowledged.begin(), acknowledged.end());
        const std::string under = std::to_string(round) + "." + std::to_string(acknowledged.size());
        if (found.contains(under)) {
            expected.insert(under); // durable, but killed before it could tell
        }
        ASSERT_EQ(found, expected);
    }
}

} // namespace
} // namespace platform::store::test
