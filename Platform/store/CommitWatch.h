#pragma once

#include <filesystem>
#include <memory>

namespace platform::store {

/// Tells an event loop that a store may have been committed to, by whatever process. Wait until
/// `fd` is readable, call `drain`, and refresh the contexts when it answers true; that may be too
/// often (a refresh without news is cheap), never too rarely. Confined to one thread at a time.
class CommitWatch {
public:
    /// Watches the store in `file`; a watch without a file never fires. Throws `StoreError` (`io`).
    explicit CommitWatch(const std::filesystem::path& file);
    ~CommitWatch();
    CommitWatch(const CommitWatch&) = delete;
    CommitWatch& operator=(const CommitWatch&) = delete;

    /// Becomes readable when `drain` is due. Owned by the watch.
    [[nodiscard]] int fd() const;

    /// Takes what was reported, without waiting; true when contexts should be refreshed.
    [[nodiscard]] bool drain();

private:
    class Impl;
    std::unique_ptr<Impl> impl_;
};

} // namespace platform::store
