#pragma once

#include "Platform/base/Uuid.h"
#include "Platform/store/CommitWatch.h"
#include "Platform/store/Context.h"
#include "Platform/store/Schema.h"

#include <filesystem>
#include <functional>
#include <memory>

namespace platform::store {

class Database;

/// Where and how a store is opened.
struct StoreConfiguration {
    /// The store's file, or a symbolic link to it. Its folder is created (0700) when missing; the
    /// file is made 0600. Ignored for a store in memory.
    std::filesystem::path file = {};
    /// Kept in memory only; gone with the last owner of the store.
    bool inMemory = false;
    /// SQLite VFS to use; null is the system's. Tests inject faults here.
    const char* vfs = nullptr;
    /// How long a save waits for another program's save, in milliseconds.
    int busyTimeoutMilliseconds = 5000;
};

/// An opened record store. Opening checks that the file is ours, whole and not newer than this
/// program, moves an older schema on in place in one transaction, and never changes a file it
/// refuses. Owned by shared pointer; contexts keep it alive. Safe to use from any thread.
class Store : public std::enable_shared_from_this<Store> {
public:
    /// Throws `StoreError`.
    [[nodiscard]] static std::shared_ptr<Store> open(const Schema& schema,
                                                     const StoreConfiguration& configuration);
    ~Store();
    Store(const Store&) = delete;
    Store& operator=(const Store&) = delete;

    /// A new context, confined to the calling thread. Throws `StoreError`.
    [[nodiscard]] std::unique_ptr<Context> makeContext(ContextEnvironment environment);

    /// Registers a function called after every commit of a context of this object, on the thread
    /// that saved. Commits of other processes are seen through `watchCommits`. The registration
    /// ends when the returned handle is destroyed; a call under way on another thread may still
    /// finish.
    [[nodiscard]] std::shared_ptr<void> onCommit(std::function<void()> listener);

    /// A watch on the store's file that tells of commits by any process. Throws `StoreError`.
    [[nodiscard]] std::unique_ptr<CommitWatch> watchCommits() const;

    /// Reads the whole file and checks it: takes as long as a scan or two, for a worker. Throws
    /// `damaged` when it is not whole; from then on every save of this object is refused.
    void verify();

    /// The random identity the file got when it was created.
    [[nodiscard]] Uuid id() const;

    [[nodiscard]] const StoreConfiguration& configuration() const;

private:
    friend class Context;
    friend class Snapshot;
    class Impl;

    explicit Store(std::unique_ptr<Impl> impl);
    [[nodiscard]] const Schema& schema() const;
    /// A new connection for the calling thread.
    [[nodiscard]] std::unique_ptr<Database> connect() const;
    /// Throws `damaged` when damage was found since the store was opened.
    void checkSound() const;
    void notifyCommitted() const;

    std::unique_ptr<Impl> impl_;
};

} // namespace platform::store
