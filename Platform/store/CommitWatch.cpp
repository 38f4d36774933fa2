#include "Platform/store/CommitWatch.h"

#include "Platform/base/UniqueFd.h"
#include "Platform/store/SqliteError.h"

#include <sys/epoll.h>
#include <sys/inotify.h>
#include <sys/timerfd.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string>

namespace platform::store {

namespace {

// The log is written before it is synced, and a commit is seen only after that; so a write is
// followed up by looking again, at growing distances, for as long as a slow disk may take to sync.
constexpr std::array followUpMilliseconds = {10, 30, 100, 250, 500, 1000, 2000};

int checked(int result, const char* what) {
    if (result < 0) {
        throw systemError(StoreFault::io, what, errno);
    }
    return result;
}

UniqueFd opened(int fd, const char* what) {
    return UniqueFd(checked(fd, what));
}

} // namespace

class CommitWatch::Impl {
public:
    explicit Impl(const std::filesystem::path& file) : logName_(file.filename().string() + "-wal") {
        waitFor(inotify_);
        waitFor(timer_);
        if (!file.empty()) {
            const std::filesystem::path folder = file.has_parent_path() ? file.parent_path() : ".";
            checked(::inotify_add_watch(inotify_.get(), folder.c_str(), IN_MODIFY | IN_CREATE),
                    "cannot watch the store's folder");
        }
    }

    [[nodiscard]] int fd() const { return epoll_.get(); }

    bool drain() {
        std::uint64_t expirations = 0;
        const bool isDue = ::read(timer_.get(), &expirations, sizeof expirations) > 0;
        if (wasLogWritten()) {
            followUps_ = 0;
            schedule();
            return true;
        }
        if (isDue) {
            schedule();
        }
        return isDue;
    }

private:
    void waitFor(const UniqueFd& source) {
        epoll_event event{};
        event.events = EPOLLIN;
        event.data.fd = source.get();
        checked(::epoll_ctl(epoll_.get(), EPOLL_CTL_ADD, source.get(), &event),
                "cannot wait for the store's folder");
    }

    bool wasLogWritten() {
        alignas(inotify_event) std::array<char, 4096> buffer{};
        bool found = false;
        for (;;) {
            const ssize_t size = ::read(inotify_.get(), buffer.data(), buffer.size());
            if (size <= 0) {
                return found;
            }
            for (std::size_t at = 0; at < static_cast<std::size_t>(size);) {
                inotify_event event{};
                std::memcpy(&event, buffer.data() + at, sizeof event);
                const char* name = buffer.data() + at + sizeof event;
                found = found || (event.mask & IN_Q_OVERFLOW) != 0 ||
                        (event.len > 0 && logName_ == name);
                at += sizeof event + event.len;
            }
        }
    }

    void schedule() {
        if (followUps_ == followUpMilliseconds.size()) {
            return;
        }
        itimerspec time{};
        const int milliseconds = followUpMilliseconds.at(followUps_++);
        time.it_value.tv_sec = milliseconds / 1000;
        time.it_value.tv_nsec = milliseconds % 1000 * 1'000'000L;
        checked(::timerfd_settime(timer_.get(), 0, &time, nullptr), "cannot set a timer");
    }

    std::string logName_;
    UniqueFd epoll_ = opened(::epoll_create1(EPOLL_CLOEXEC), "cannot create an epoll instance");
    UniqueFd inotify_ =
        opened(::inotify_init1(IN_NONBLOCK | IN_CLOEXEC), "cannot create an inotify instance");
    UniqueFd timer_ = opened(::timerfd_create(CLOCK_MONOTONIC, TFD_NONBLOCK | TFD_CLOEXEC),
                             "cannot create a timer");
    std::size_t followUps_ = 0;
};

CommitWatch::CommitWatch(const std::filesystem::path& file) : impl_(std::make_unique<Impl>(file)) {
}

CommitWatch::~CommitWatch() = default;

int CommitWatch::fd() const {
    return impl_->fd();
}

bool CommitWatch::drain() {
    return impl_->drain();
}

} // namespace platform::store
