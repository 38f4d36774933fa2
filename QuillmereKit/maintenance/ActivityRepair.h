#pragma once

#include "Platform/base/Instant.h"
#include "QuillmereKit/records/BalanceAdjustment.h"
#include "QuillmereKit/records/WorkEntry.h"

#include <optional>

namespace quillmere::ActivityRepair {

/// Largest unpaid break, in minutes.
inline constexpr std::int64_t maximumBreakMinutes = 240;

/// The values as they should be; nothing when they are so already. A repaired content makes `now`
/// the time of the last change, repaired times alone do not.
[[nodiscard]] std::optional<WorkEntryValues> repaired(const WorkEntryValues& stored,
                                                      platform::Instant now);
[[nodiscard]] std::optional<BalanceAdjustmentValues> repaired(const BalanceAdjustmentValues& stored,
                                                              platform::Instant now);

/// Assigns the fields that a repair may change.
void assign(WorkEntry& entry, const WorkEntryValues& repaired);
void assign(BalanceAdjustment& adjustment, const BalanceAdjustmentValues& repaired);

} // namespace quillmere::ActivityRepair
