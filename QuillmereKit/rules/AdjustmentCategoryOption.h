#pragma once

#include "QuillmereKit/rules/AdjustmentCategoryBehavior.h"
#include "QuillmereKit/rules/BalanceAdjustmentKind.h"

#include <optional>
#include <string>
#include <string_view>

namespace quillmere {

/// A category as screens show it. Identified by its raw value.
struct AdjustmentCategoryOption {
    std::string rawValue; ///< what `BalanceAdjustment::kindRawValue` holds
    std::string title;
    std::string systemImage; ///< symbol name
    AdjustmentCategoryBehavior behavior = AdjustmentCategoryBehavior::manual;

    [[nodiscard]] const std::string& id() const { return rawValue; }

    [[nodiscard]] static AdjustmentCategoryOption builtIn(BalanceAdjustmentKind kind);

    /// The option of a built-in kind, else of a custom category under its canonical raw value;
    /// nothing when the raw value names neither.
    [[nodiscard]] static std::optional<AdjustmentCategoryOption> resolve(std::string_view rawValue);

    friend bool operator==(const AdjustmentCategoryOption&,
                           const AdjustmentCategoryOption&) = default;
};

} // namespace quillmere
