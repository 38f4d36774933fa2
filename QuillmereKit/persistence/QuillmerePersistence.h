#pragma once

#include "Platform/store/Schema.h"
#include "Platform/store/Store.h"
#include "QuillmereKit/persistence/StoreLocations.h"

#include <memory>
#include <string_view>

namespace quillmere {

/// The record store: what it holds and where it lies.
namespace QuillmerePersistence {

/// Name of the store; its file is this with the suffix ".sqlite".
inline constexpr std::string_view storeName = "Quillmere";

/// The four record types of the time bank and the receipts of keyed actions, schema version 1.1.0.
/// Made once, safe from any thread.
[[nodiscard]] const platform::store::Schema& schema();

/// Opens the store: in memory, or as a file in the shared container or the default folder. A store
/// in memory is neither shared nor synchronised, whatever the other arguments say. Any thread.
/// Throws `StoreError`; asking for cloud sync fails as `cannotOpen` while no private sync account
/// exists.
[[nodiscard]] std::shared_ptr<platform::store::Store>
makeContainer(bool inMemory, bool cloudSync, bool useAppGroup, const StoreLocations& locations);

} // namespace QuillmerePersistence

} // namespace quillmere
