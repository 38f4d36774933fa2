#pragma once

#include "QuillmereKit/rules/BalanceAdjustmentKind.h"

#include <array>
#include <set>
#include <string>
#include <string_view>

namespace quillmere {

/// Which of the optional built-in kinds the user wants to see, and the text the settings hold.
namespace AdjustmentKindConfiguration {

inline constexpr std::array configurableKinds{
    BalanceAdjustmentKind::appointment,
    BalanceAdjustmentKind::personalErrands,
    BalanceAdjustmentKind::longLunch,
    BalanceAdjustmentKind::other,
};

/// The raw values of the configurable kinds in the set, in the order above, joined by commas. Other
/// kinds are left out.
[[nodiscard]] std::string rawValue(const std::set<BalanceAdjustmentKind>& kinds);

/// `rawValue` of all configurable kinds.
[[nodiscard]] const std::string& defaultRawValue();

/// Reads what `rawValue` wrote. Unknown names are dropped. A text naming one of the kinds that add
/// time is disregarded as a whole: the result is then all configurable kinds.
[[nodiscard]] std::set<BalanceAdjustmentKind> kinds(std::string_view rawValue);

} // namespace AdjustmentKindConfiguration

} // namespace quillmere
