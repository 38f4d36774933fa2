#pragma once

#include "Platform/calendar/Calendar.h"
#include "QuillmereKit/records/LedgerRow.h"

#include <cstddef>
#include <optional>
#include <span>
#include <vector>

namespace quillmere {

/// What happened lately. Rows newest first.
namespace LedgerActivity {

inline constexpr std::size_t recentItemCount = 3;

/// Seconds of all changes dated on the day that contains `now`, also those still to come.
[[nodiscard]] double secondsToday(std::span<const LedgerRow> adjustments, platform::Instant now,
                                  const platform::Calendar& calendar);

/// The newest listed rows. `lastTransaction`, a change saved a moment ago, takes part also when the
/// rows do not hold it yet.
[[nodiscard]] std::vector<LedgerRow>
recentItems(std::span<const LedgerRow> adjustments,
            const std::optional<LedgerRow>& lastTransaction = std::nullopt);

} // namespace LedgerActivity

} // namespace quillmere
