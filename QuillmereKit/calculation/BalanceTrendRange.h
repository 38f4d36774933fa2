#pragma once

#include <array>
#include <string_view>

namespace quillmere {

/// How far the balance history reaches back; the value is the number of days.
enum class BalanceTrendRange { week = 7, twoWeeks = 14, month = 30, quarter = 90 };

[[nodiscard]] constexpr int dayCount(BalanceTrendRange range) {
    return static_cast<int>(range);
}
/// "7 days" and so on.
[[nodiscard]] std::string_view title(BalanceTrendRange range);

namespace BalanceTrendRanges {

inline constexpr std::array all{BalanceTrendRange::week, BalanceTrendRange::twoWeeks,
                                BalanceTrendRange::month, BalanceTrendRange::quarter};

/// The range of a stored day count; `month` for any number that is none.
[[nodiscard]] BalanceTrendRange fromDayCount(double days);

} // namespace BalanceTrendRanges

} // namespace quillmere
