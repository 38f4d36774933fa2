#include "Platform/store/Database.h"

#include "Platform/store/SqliteError.h"

#include <sqlite3.h>

#include <utility>

namespace platform::store {

namespace {

// 64 MiB of page cache at most: indexes of large stores stay in memory while many rows are written.
// A log that one large save has grown is cut back to 4 MiB.
constexpr const char* settings = "PRAGMA synchronous = FULL;"
                                 "PRAGMA cache_size = -65536;"
                                 "PRAGMA journal_size_limit = 4194304;"
                                 "PRAGMA cell_size_check = ON;"
                                 "PRAGMA trusted_schema = OFF;"
                                 "PRAGMA temp_store = MEMORY";

} // namespace

void Database::Closer::operator()(sqlite3* handle) const {
    sqlite3_close_v2(handle);
}

void Database::Finalizer::operator()(sqlite3_stmt* statement) const {
    sqlite3_finalize(statement);
}

Database::Database(const Options& options, std::shared_ptr<StoreHealth> health)
    : health_(std::move(health)) {
    const int flags =
        SQLITE_OPEN_READWRITE | SQLITE_OPEN_URI | SQLITE_OPEN_NOMUTEX | SQLITE_OPEN_EXRESCODE;
    sqlite3* handle = nullptr;
    const int result = sqlite3_open_v2(options.uri.c_str(), &handle, flags, options.vfs);
    handle_.reset(handle);
    if (result != SQLITE_OK) {
        fail(result);
    }
    setCheckpointOnClose(false);
    sqlite3_busy_timeout(handle, options.busyTimeoutMilliseconds);
}

Database::~Database() = default;

void Database::configure() {
    execute(settings);
}

Statement Database::prepare(std::string_view sql) {
    auto entry = pool_.find(sql);
    if (entry == pool_.end()) {
        entry = pool_.emplace(sql, nullptr).first;
    }
    if (entry->second != nullptr) {
        return {*this, entry->first, entry->second.release()};
    }
    sqlite3_stmt* statement = nullptr;
    const int result = sqlite3_prepare_v3(handle_.get(), sql.data(), static_cast<int>(sql.size()),
                                          SQLITE_PREPARE_PERSISTENT, &statement, nullptr);
    if (result != SQLITE_OK) {
        fail(result);
    }
    return {*this, entry->first, statement};
}

void Database::giveBack(std::string_view poolKey, sqlite3_stmt* statement) {
    sqlite3_reset(statement);
    sqlite3_clear_bindings(statement);
    pool_.find(poolKey)->second.reset(statement);
}

void Database::execute(const std::string& sql) {
    const int result = sqlite3_exec(handle_.get(), sql.c_str(), nullptr, nullptr, nullptr);
    if (result != SQLITE_OK) {
        fail(result);
    }
}

std::int64_t Database::integer(std::string_view sql) {
    Statement row = prepare(sql);
    return row.step() ? row.integer(0) : 0;
}

bool Database::isInTransaction() const {
    return sqlite3_get_autocommit(handle_.get()) == 0;
}

bool Database::hasMoved() const {
    int moved = 0;
    sqlite3_file_control(handle_.get(), "main", SQLITE_FCNTL_HAS_MOVED, &moved);
    return moved != 0;
}

bool Database::isReadOnly() const {
    return sqlite3_db_readonly(handle_.get(), "main") == 1;
}

void Database::setCheckpointOnClose(bool checkpoint) {
    sqlite3_db_config(handle_.get(), SQLITE_DBCONFIG_NO_CKPT_ON_CLOSE, checkpoint ? 0 : 1, nullptr);
}

void Database::fail(int result) const {
    const StoreError error = sqliteError(result, handle_.get());
    if (error.fault() == StoreFault::damaged) {
        health_->damaged = true;
    }
    throw error;
}

} // namespace platform::store
