#pragma once

#include "Platform/store/Database.h"
#include "Platform/store/Schema.h"

#include <filesystem>
#include <memory>

namespace platform::store {

struct StoreConfiguration;

/// Where the store is that `file` names: symbolic links are followed once, as SQLite does, so that
/// all look for the log beside the same file. A file that is not there yet is answered as it is.
/// Throws `cannotOpen` when something other than a file is there.
[[nodiscard]] std::filesystem::path resolveStoreFile(const std::filesystem::path& file);

/// Opens the store's file, which may be new, with its first connection; see `Store::open`.
[[nodiscard]] std::unique_ptr<Database> openStoreFile(const Schema& schema,
                                                      const StoreConfiguration& configuration,
                                                      std::shared_ptr<StoreHealth> health);

} // namespace platform::store
