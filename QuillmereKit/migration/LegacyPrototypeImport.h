#pragma once

#include "Platform/base/Instant.h"
#include "Platform/base/Uuid.h"
#include "Platform/preferences/Preferences.h"
#include "Platform/store/Context.h"

#include <cstdint>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace quillmere {

/// One entry of the earliest prototype's list.
struct LegacyBalanceEntry {
    platform::Uuid id;
    std::int64_t minutes = 0;
    platform::Instant date;
    std::string note;

    friend bool operator==(const LegacyBalanceEntry&, const LegacyBalanceEntry&) = default;
};

/// The prototype's data does not read as a list of its entries.
class LegacyPrototypeError final : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// Takes over the entries of the earliest prototype, once.
namespace LegacyPrototypeImport {

/// Preference domain of the prototype, and the key of its list in it.
inline constexpr std::string_view prototypeDomain = "dev.vantor.Quillmere";
inline constexpr std::string_view entriesKey = "timeEntries";
/// Flag in the standard preferences: the import is done.
inline constexpr std::string_view completedKey = "legacyPrototypeMigration.v1";

/// Reads the prototype's JSON: an array of objects with the keys "id", "minutes", "date" (seconds
/// since 2001) and "note", all required. Throws `LegacyPrototypeError`.
[[nodiscard]] std::vector<LegacyBalanceEntry> decode(std::string_view bytes);

/// Inserts every entry whose identifier the store does not know, as it is, saves, and sets the
/// flag, which stops every later run. Also sets it when the prototype left nothing to import.
/// Throws `LegacyPrototypeError` or `StoreError` with the flag unset; the caller rolls back.
void run(platform::store::Context& context, platform::Preferences& standard,
         const platform::Preferences& prototype);

} // namespace LegacyPrototypeImport

} // namespace quillmere
