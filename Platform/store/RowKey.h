#pragma once

#include <cstdint>

namespace platform::store {

/// A record's identity in one store: never reused, the same in every context and process. A record
/// that is not saved yet has a provisional key, known to its context only; the first save replaces
/// it. Provisional keys sort after all others and in the order of insertion, as the saved ones
/// will.
enum class RowKey : std::int64_t { none = 0 };

/// The key as rows of live queries carry it.
using RowRef = RowKey;

/// The number of a save. Every save of a store takes the next one; rows carry the revision that
/// last wrote them.
enum class Revision : std::int64_t { none = 0 };

inline constexpr RowKey firstProvisionalKey{std::int64_t{1} << 62};

[[nodiscard]] constexpr bool isProvisional(RowKey key) {
    return key >= firstProvisionalKey;
}

} // namespace platform::store
