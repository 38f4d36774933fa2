#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace quillmere {

/// Keeps stored categories and amounts within what a category allows.
namespace AdjustmentCategoryValidation {

/// Largest amount of a category with a fixed sign: one day.
inline constexpr std::int64_t maximumSignedCategoryMinutes = 1440;
/// Largest amount of a manual change, either way.
inline constexpr std::int64_t maximumManualMinutes = 60'000;

/// The raw value of a built-in kind as it is, that of a custom category in canonical form, anything
/// else "manual".
[[nodiscard]] std::string normalizedRawValue(std::string_view rawValue);

/// The amount clamped to the category's range: 0 … 1440 where it adds time, −1440 … 0 where it
/// takes time, else ±60,000. A wrong sign gives 0; it is never flipped.
[[nodiscard]] std::int64_t normalizedMinutes(std::int64_t minutes, std::string_view rawValue);

} // namespace AdjustmentCategoryValidation

} // namespace quillmere
