#include "Platform/store/Transaction.h"

#include "Platform/store/Database.h"
#include "Platform/store/StoreError.h"

namespace platform::store {

namespace {

void rollbackQuietly(Database& database) {
    if (database.isInTransaction()) {
        try {
            database.execute("ROLLBACK");
        } catch (const StoreError&) {
            // SQLite has rolled back by itself, or does so when the connection closes.
        }
    }
}

void runCommit(Database& database) {
    try {
        database.prepare("COMMIT").run();
    } catch (const StoreError&) {
        rollbackQuietly(database);
        throw;
    }
}

} // namespace

Transaction::Transaction(Database& database, Kind kind) : database_(database) {
    database.prepare(kind == Kind::write ? "BEGIN IMMEDIATE" : "BEGIN").run();
}

Transaction::~Transaction() {
    rollbackQuietly(database_);
}

void Transaction::commit() {
    try {
        runCommit(database_);
    } catch (const StoreError& error) {
        if (error.fault() != StoreFault::locked) {
            database_.health().failedCommit = true;
            try {
                settleFailedCommit(database_);
            } catch (const StoreError&) {
                // Stays to be seen to before the next save; the first error is the one to tell.
            }
        }
        throw;
    }
}

void settleFailedCommit(Database& database) {
    if (!database.health().failedCommit) {
        return;
    }
    Transaction write(database, Transaction::Kind::write);
    database.execute("UPDATE store_meta SET failed_commits = failed_commits + 1");
    runCommit(database);
    database.health().failedCommit = false;
}

} // namespace platform::store
