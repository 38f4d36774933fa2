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
        return faultOfSystemError(error).value_or(StoreFault::io);
    }
}

bool comesFromSystem(int result) {
    const int primary = result & 0xff;
    return primary == SQLITE_IOERR || primary == SQLITE_CANTOPEN;
}

} // namespace

StoreError sqliteError(int result, sqlite3* handle) {
    const int error = comesFromSystem(result) ? sqlite3_system_errno(handle) : 0;
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
