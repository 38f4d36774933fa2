#pragma once

#include "Platform/store/Database.h"
#include "Platform/store/Schema.h"

#include <memory>

namespace platform::store {

struct StoreConfiguration;

/// Opens the store's file, which may be new, with its first connection; see `Store::open`.
[[nodiscard]] std::unique_ptr<Database> openStoreFile(const Schema& schema,
                                                      const StoreConfiguration& configuration,
                                                      std::shared_ptr<StoreHealth> health);

} // namespace platform::store
