#include "Platform/store/SqliteError.h"

#include <sqlite3.h>

#include <cerrno>
#include <optional>
#include <system_error>

namespace platform::store {

namespace {

std::optional<StoreFault> faultOfSystemError(int error) {
    switch (error) {
    case ENOSPC:
    case EDQUOT:
        return StoreFault::diskFull;
    case EROFS:
    case EACCES:
    case EPERM:
        return StoreFault::readOnly;
    default:
        return std::nullopt;
    }
}

StoreFault faultOf(int result, int error) {
    if (result == SQLITE_CONSTRAINT_UNIQUE) {
        return StoreFault::notUnique;
    }
    switch (result & 0xff) {
    case SQLITE_FULL:
        return StoreFault::diskFull;
    case SQLITE_BUSY:
    case SQLITE_LOCKED:
        return StoreFault::locked;
    case SQLITE_CORRUPT:
    case SQLITE_NOTADB:
        return StoreFault::damaged;
    case SQLITE_READONLY:
        return result == SQLITE_READONLY_DBMOVED ? StoreFault::io : StoreFault::readOnly;
    case SQLITE_CANTOPEN:
        return faultOfSystemError(error).value_or(StoreFault::cannotOpen);
    case SQLITE_ERROR:
    case SQLITE_MISUSE:
    case SQLITE_RANGE:
    case SQLITE_TOOBIG:
    case SQLITE_CONSTRAINT:
        return StoreFault::misuse;
    default:
        // The index beside the log grows by writing to it, so that there is space behind its pages.
        return result == SQLITE_IOERR_SHMSIZE ? StoreFault::diskFull
                                              : faultOfSystemError(error).value_or(StoreFault::io);
    }
}

/// The system's error behind a result code, or 0. A failed commit leaves it with the log alone.
int systemErrorOf(int result, sqlite3* handle) {
    const int primary = result & 0xff;
    if (primary != SQLITE_IOERR && primary != SQLITE_CANTOPEN) {
        return 0;
    }
    int error = sqlite3_system_errno(handle);
    sqlite3_file* log = nullptr;
    if (error == 0 &&
        sqlite3_file_control(handle, nullptr, SQLITE_FCNTL_JOURNAL_POINTER, &log) == SQLITE_OK &&
        log != nullptr && log->pMethods != nullptr) {
        log->pMethods->xFileControl(log, SQLITE_FCNTL_LAST_ERRNO, &error);
    }
    return error;
}

} // namespace

StoreError sqliteError(int result, sqlite3* handle) {
    const int error = systemErrorOf(result, handle);
    std::string text = sqlite3_errmsg(handle);
    text += " (SQLite " + std::to_string(result) + ")";
    if (error != 0) {
        text += ": " + std::system_category().message(error);
    }
    return {faultOf(result, error), text};
}

StoreError systemError(StoreFault otherwise, const std::string& what, int error) {
    return {faultOfSystemError(error).value_or(otherwise),
            what + ": " + std::system_category().message(error)};
}

} // namespace platform::store
