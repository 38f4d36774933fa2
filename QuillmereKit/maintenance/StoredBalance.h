#pragma once

#include "Platform/store/Context.h"
#include "QuillmereKit/maintenance/RepairMemory.h"
#include "QuillmereKit/records/BalanceAdjustmentValues.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace quillmere {

/// Sums up the changes of a store without reading all of them each time.
///
/// A note of the store holds what the changes up to some moment add up to, which ones are later,
/// and the revision of which that is true. The next sum looks only at the later ones and at what
/// was written since; where an earlier change was edited or deleted, it reads all of them.
class StoredBalance {
public:
    struct Figures {
        std::int64_t balanceMinutes = 0; ///< of the changes alone, without the starting balance
        std::int64_t addedMinutes = 0;   ///< on the day
        std::int64_t takenMinutes = 0;   ///< on the day, as a negative number
    };

    /// The context must outlive the object.
    explicit StoredBalance(platform::store::Context& context);

    /// Sums up the changes dated up to and including `through`, unsaved ones included; those from
    /// `dayStart` on count for the day. Throws `StoreError`, a `misuse` when a sum leaves 64 bits.
    [[nodiscard]] Figures figures(platform::Instant dayStart, platform::Instant through);

    /// The same without a look at a day, which needs less where it has to read all changes.
    [[nodiscard]] std::int64_t balanceMinutes(platform::Instant through);

    /// Notes and saves what the next sum can build on, if `figures` had to read many changes.
    /// Leaves a context alone that has unsaved changes. A note that cannot be saved is done
    /// without.
    void remember();

    /// Empties the note with the next save: nothing of erased changes stays.
    static void forget(platform::store::Context& context);

private:
    struct Change {
        platform::Instant date;
        std::int64_t minutes;
    };
    [[nodiscard]] Figures counted(platform::Instant dayStart, platform::Instant through) const;
    bool recall(platform::Instant dayStart, platform::Instant through);
    bool readNote(std::string_view words, platform::Instant dayStart, platform::Instant through);
    bool takeInNewer(const RepairMark& mark);
    void readAll(platform::Instant dayStart, platform::Instant through);
    [[nodiscard]] std::string noteWords() const;

    platform::store::Context& context_;
    RepairMemory memory_;
    RepairMark mark_;
    /// The greatest key among the changes that were there when all were read; new ones are greater.
    platform::store::RowKey lastKey_ = platform::store::RowKey::none;
    Figures summedUp_; ///< of the changes that are not listed
    platform::Instant dayStart_;
    platform::Instant through_;
    /// The changes that count one by one; nothing where one is gone.
    std::unordered_map<platform::store::RowKey, std::optional<Change>> listed_;
    std::vector<platform::store::RowKey> laterKeys_;
    std::size_t looked_ = 0;
};

} // namespace quillmere
