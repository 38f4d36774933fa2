#pragma once

namespace platform::store {

class Database;

/// A transaction that is rolled back unless committed.
class Transaction {
public:
    enum class Kind {
        read, ///< sees one state of the store throughout
        write ///< keeps other writers out from the start; waits for them as long as configured
    };

    Transaction(Database& database, Kind kind);
    ~Transaction();
    Transaction(const Transaction&) = delete;
    Transaction& operator=(const Transaction&) = delete;

    /// Makes the changes durable. When that fails, none of them is on disk, also not after a crash,
    /// or `StoreHealth::failedCommit` says that this still has to be seen to.
    void commit();

private:
    Database& database_;
};

/// A commit can fail after its frames, the commit mark among them, have reached the write-ahead
/// log: when the log cannot be synced, or the index beside it not extended. Nobody sees such
/// frames, but recovery after a crash would take them for committed. When that may be so, this
/// writes a small commit of its own over them, which breaks their chain of checksums. Throws
/// `StoreError` when it cannot; it is then to be called again before anything else is written.
void settleFailedCommit(Database& database);

} // namespace platform::store
