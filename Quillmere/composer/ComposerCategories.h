#pragma once

#include "QuillmereKit/rules/AdjustmentCategoryOption.h"

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace quillmere {

/// The categories offered for taking time.
namespace ComposerCategories {

/// From the settings' texts of visible kinds and of custom categories: the visible built-in kinds
/// that deduct in their fixed order, then the user's own in theirs.
[[nodiscard]] std::vector<AdjustmentCategoryOption>
shown(std::string_view visibleKindsRawValue, std::string_view customCategoriesRawValue);

/// The same, but "Other" alone when that is nothing; never empty.
[[nodiscard]] std::vector<AdjustmentCategoryOption>
options(std::string_view visibleKindsRawValue, std::string_view customCategoriesRawValue);

/// The raw value itself when an option has it, else that of the first option, else "other".
[[nodiscard]] std::string valid(std::string_view rawValue,
                                std::span<const AdjustmentCategoryOption> options);

} // namespace ComposerCategories

} // namespace quillmere
