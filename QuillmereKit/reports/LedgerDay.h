#pragma once

#include "Platform/calendar/Calendar.h"
#include "QuillmereKit/records/LedgerRow.h"
#include "QuillmereKit/reports/LedgerTotals.h"

#include <span>
#include <vector>

namespace quillmere {

/// One day of the ledger.
struct LedgerDay {
    LedgerTotals totals;           ///< of every change
    std::vector<LedgerRow> listed; ///< those that lists show, oldest first

    /// The day that contains the instant. Rows newest first.
    [[nodiscard]] static LedgerDay of(std::span<const LedgerRow> adjustments,
                                      platform::Instant date, const platform::Calendar& calendar);
};

} // namespace quillmere
