#include "QuillmereKit/records/WorkEntry.h"

#include <algorithm>

namespace quillmere {

WorkEntry::WorkEntry(platform::Uuid id, platform::Instant startedAt,
                     std::optional<platform::Instant> endedAt, std::int64_t breakMinutes,
                     std::string note, platform::Instant createdAt, platform::Instant modifiedAt)
    : Record({.id = id,
              .startedAt = startedAt,
              .endedAt = endedAt,
              .breakMinutes = breakMinutes,
              .note = std::move(note),
              .createdAt = createdAt,
              .modifiedAt = modifiedAt}) {
}

std::unique_ptr<WorkEntry> WorkEntry::create(const platform::Clock& clock) {
    const platform::Instant now = clock.now();
    return std::make_unique<WorkEntry>(platform::Uuid::random(), now, std::nullopt, 0,
                                       std::string{}, now, now);
}

double WorkEntry::workedSeconds(platform::Instant asOf) const {
    const double breakSeconds =
        60.0 * static_cast<double>(std::max<std::int64_t>(breakMinutes(), 0));
    const double worked = (endedAt().value_or(asOf) - startedAt()) - breakSeconds;
    return worked > 0 ? worked : 0; // also for a value that is not a number
}

} // namespace quillmere
