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

} // namespace platform::store
