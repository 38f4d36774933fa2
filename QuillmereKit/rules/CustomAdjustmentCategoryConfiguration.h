#pragma once

#include "QuillmereKit/rules/CustomAdjustmentCategory.h"

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace quillmere {

/// The user's own categories, and the text the settings hold: a JSON array of titles.
namespace CustomAdjustmentCategoryConfiguration {

inline constexpr std::string_view defaultRawValue = "[]";

/// Reads a JSON array of titles: normalised, empty ones skipped, titles that differ only in case
/// kept once (the first), at most `CustomAdjustmentCategory::maximumCount`. Anything else gives
/// none.
[[nodiscard]] std::vector<CustomAdjustmentCategory> categories(std::string_view rawValue);

/// Writes compact JSON in UTF-8, "/" as "\/", after the same removal of duplicates and the same
/// cut.
[[nodiscard]] std::string rawValue(std::span<const CustomAdjustmentCategory> categories);

} // namespace CustomAdjustmentCategoryConfiguration

} // namespace quillmere
