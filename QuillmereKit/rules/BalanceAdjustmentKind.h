#pragma once

#include "QuillmereKit/rules/AdjustmentCategoryBehavior.h"

#include <array>
#include <optional>
#include <string_view>

namespace quillmere {

/// The categories every time bank has. Their raw values are stored and exported: frozen.
enum class BalanceAdjustmentKind {
    manual,
    appointment,
    personalErrands,
    longLunch,
    other,
    holiday,
    paidLeave,
    sickLeave,
};

[[nodiscard]] std::string_view rawValue(BalanceAdjustmentKind kind);
[[nodiscard]] std::string_view title(BalanceAdjustmentKind kind);
/// Name of the kind's symbol.
[[nodiscard]] std::string_view systemImage(BalanceAdjustmentKind kind);
[[nodiscard]] AdjustmentCategoryBehavior behavior(BalanceAdjustmentKind kind);

namespace BalanceAdjustmentKinds {

inline constexpr std::array all{
    BalanceAdjustmentKind::manual,          BalanceAdjustmentKind::appointment,
    BalanceAdjustmentKind::personalErrands, BalanceAdjustmentKind::longLunch,
    BalanceAdjustmentKind::other,           BalanceAdjustmentKind::holiday,
    BalanceAdjustmentKind::paidLeave,       BalanceAdjustmentKind::sickLeave,
};

/// The kind with exactly this raw value; nothing when there is none.
[[nodiscard]] std::optional<BalanceAdjustmentKind> fromRawValue(std::string_view rawValue);

} // namespace BalanceAdjustmentKinds

} // namespace quillmere
