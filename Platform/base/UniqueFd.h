#pragma once

#include <unistd.h>

#include <utility>

namespace platform {

/// Owns a file descriptor and closes it when it goes away.
class UniqueFd {
public:
    UniqueFd() = default;
    /// Takes over `fd`; a negative one is no descriptor.
    explicit UniqueFd(int fd) : fd_(fd) {}
    UniqueFd(UniqueFd&& other) noexcept : fd_(std::exchange(other.fd_, -1)) {}
    UniqueFd& operator=(UniqueFd&& other) noexcept {
        reset(std::exchange(other.fd_, -1));
        return *this;
    }
    ~UniqueFd() { reset(); }

    [[nodiscard]] int get() const { return fd_; }
    [[nodiscard]] bool isOpen() const { return fd_ >= 0; }

    /// Closes the descriptor held and takes over `fd` instead.
    void reset(int fd = -1) {
        const int old = std::exchange(fd_, fd);
        if (old >= 0) {
            ::close(old);
        }
    }

private:
    int fd_ = -1;
};

} // namespace platform
