#pragma once

#include "Platform/store/Statement.h"

#include <atomic>
#include <cstdint>
#include <map>
#include <memory>
#include <string>
#include <string_view>

struct sqlite3;

namespace platform::store {

/// What all connections of one opened store know of its file.
struct StoreHealth {
    std::atomic<bool> damaged = false; ///< SQLite found damage: no more saves
    std::atomic<bool> failedCommit =
        false; ///< the log may end in a commit that was reported failed
};

/// One connection to an SQLite database, for one thread at a time. Failures throw `StoreError`.
class Database {
public:
    struct Options {
        std::string uri; ///< file name or `file:` URI
        const char* vfs = nullptr;
        int busyTimeoutMilliseconds = 0;
    };

    /// Opens the file and reads nothing of it yet.
    Database(const Options& options, std::shared_ptr<StoreHealth> health);
    ~Database();
    Database(const Database&) = delete;
    Database& operator=(const Database&) = delete;

    /// Sets durability, cache and checks; reads the file.
    void configure();

    /// The statement compiled from one SQL text, kept for the next time.
    [[nodiscard]] Statement prepare(std::string_view sql);
    /// Runs SQL texts that answer nothing.
    void execute(const std::string& sql);
    /// First column of the first row.
    [[nodiscard]] std::int64_t integer(std::string_view sql);

    [[nodiscard]] bool isInTransaction() const;
    /// Whether the file was moved, deleted or replaced since it was opened.
    [[nodiscard]] bool hasMoved() const;
    /// Whether the file could only be opened for reading.
    [[nodiscard]] bool isReadOnly() const;
    /// Whether closing the last connection moves the log into the file; at first it does not.
    void setCheckpointOnClose(bool checkpoint);

    [[nodiscard]] StoreHealth& health() const { return *health_; }

    /// Throws the `StoreError` for an SQLite result code of this connection.
    [[noreturn]] void fail(int result) const;

private:
    friend class Statement;
    struct Closer {
        void operator()(sqlite3* handle) const;
    };
    struct Finalizer {
        void operator()(sqlite3_stmt* statement) const;
    };

    void giveBack(std::string_view poolKey, sqlite3_stmt* statement);

    std::shared_ptr<StoreHealth> health_;
    std::unique_ptr<sqlite3, Closer> handle_;
    std::map<std::string, std::unique_ptr<sqlite3_stmt, Finalizer>, std::less<>> pool_;
};

} // namespace platform::store
