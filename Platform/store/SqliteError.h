#pragma once

#include "Platform/store/StoreError.h"

struct sqlite3;

namespace platform::store {

/// The `StoreError` for an SQLite result code, with SQLite's own words and the system's.
[[nodiscard]] StoreError sqliteError(int result, sqlite3* handle);

/// Likewise for a failed system call; `what` says what was tried.
[[nodiscard]] StoreError systemError(StoreFault otherwise, const std::string& what, int error);

} // namespace platform::store
