#pragma once

#include "QuillmereKit/rules/AdjustmentCategoryOption.h"

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace quillmere {

/// The categories a change may be given when it is edited.
namespace EditorCategories {

/// "Manual adjustment", then the visible built-in kinds that deduct in their fixed order, then the
/// user's own in theirs; from the settings' texts. Behind them those of `kept`, raw values that
/// must stay selectable, which are not offered so far and name a category.
[[nodiscard]] std::vector<AdjustmentCategoryOption>
options(std::string_view visibleKindsRawValue, std::string_view customCategoriesRawValue,
        std::span<const std::string_view> kept);

} // namespace EditorCategories

} // namespace quillmere
