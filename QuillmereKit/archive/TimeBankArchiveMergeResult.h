#pragma once

#include <cstdint>

namespace quillmere {

/// What became of an archive's records when they were merged into a store.
struct TimeBankArchiveMergeResult {
    std::int64_t inserted = 0;  ///< added to the store
    std::int64_t updated = 0;   ///< newer than the store's, which they replaced
    std::int64_t unchanged = 0; ///< the store's was as new or newer

    /// All of them. A sum beyond 64 bits ends the program.
    [[nodiscard]] std::int64_t total() const;

    friend bool operator==(const TimeBankArchiveMergeResult&,
                           const TimeBankArchiveMergeResult&) = default;
};

} // namespace quillmere
