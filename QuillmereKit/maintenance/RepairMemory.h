#pragma once

#include "Platform/base/Instant.h"
#include "Platform/store/Context.h"

#include <cstddef>
#include <limits>
#include <optional>
#include <string>
#include <string_view>

namespace quillmere {

/// What a repair may rely on when it runs again: that every record written up to a revision was in
/// order then. It still is while nothing else the repair depends on has moved.
struct RepairMark {
    platform::store::Revision revision = platform::store::Revision::none;
    /// The latest modification time among those records. A clock that falls so far behind that it
    /// lies beyond the allowed skew makes faults of times that were none.
    platform::Instant newestModifiedAt{-std::numeric_limits<double>::infinity()};
    /// What else the repair found or depended on, in its own form.
    std::string finding;

    friend bool operator==(const RepairMark&, const RepairMark&) = default;
};

/// Keeps a repair's mark as a note of the store, so that a pass looks only at what was written
/// since.
///
/// The note travels with a save that repairs something. It gets a save of its own only where it
/// spares many records the next look; a pass over a small clean store never writes.
class RepairMemory {
public:
    /// Number of records worth a save to not look at them again.
    static constexpr std::size_t worthRemembering = 512;

    /// The context must outlive the object. The name is the note's.
    RepairMemory(platform::store::Context& context, std::string_view name);

    /// The last mark; nothing when there is none, when it was made by other rules than the present
    /// ones, or when `now` makes its times doubtful.
    [[nodiscard]] std::optional<RepairMark> recall(platform::Instant now) const;

    /// Ends a pass that may save: notes the mark and saves, when records were changed or enough of
    /// them were looked at.
    void finish(const RepairMark& mark, bool changed, std::size_t looked) const;

private:
    platform::store::Context& context_;
    std::string name_;
};

} // namespace quillmere
