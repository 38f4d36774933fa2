#pragma once

#include <array>
#include <string_view>

namespace quillmere {

/// Whether a change adds time or deducts it.
enum class AdjustmentDirection {
    credit,
    debit,
};

namespace AdjustmentDirections {

inline constexpr std::array all{AdjustmentDirection::credit, AdjustmentDirection::debit};

} // namespace AdjustmentDirections

/// What it is called: "Add", "Deduct".
[[nodiscard]] std::string_view rawValue(AdjustmentDirection direction);

} // namespace quillmere
