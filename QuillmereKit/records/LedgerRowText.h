#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace quillmere {

class BalanceAdjustment;

/// How one change is named wherever it is listed.
namespace LedgerRowText {

/// "Time subtracted" for negative amounts, else "Time added".
[[nodiscard]] std::string_view direction(std::int64_t minutes);

/// The note; without one the category's title where time was taken under a category that takes
/// time; else the direction.
[[nodiscard]] std::string title(const BalanceAdjustment& adjustment);

/// What screen readers hear: the note or the direction, then the duration.
[[nodiscard]] std::string accessibilityLabel(const BalanceAdjustment& adjustment);

/// Symbol of the direction.
[[nodiscard]] std::string_view systemImage(std::int64_t minutes);

} // namespace LedgerRowText

} // namespace quillmere
