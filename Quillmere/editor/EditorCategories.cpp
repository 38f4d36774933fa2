#include "Quillmere/editor/EditorCategories.h"

#include "Quillmere/composer/ComposerCategories.h"

#include <algorithm>
#include <utility>

namespace quillmere::EditorCategories {

std::vector<AdjustmentCategoryOption> options(std::string_view visibleKindsRawValue,
                                              std::string_view customCategoriesRawValue,
                                              std::span<const std::string_view> kept) {
    std::vector<AdjustmentCategoryOption> result{
        AdjustmentCategoryOption::builtIn(BalanceAdjustmentKind::manual)};
    std::ranges::move(ComposerCategories::shown(visibleKindsRawValue, customCategoriesRawValue),
                      std::back_inserter(result));
    for (const std::string_view rawValue : kept) {
        auto option = AdjustmentCategoryOption::resolve(rawValue);
        if (option && std::ranges::find(result, *option) == result.end()) {
            result.push_back(std::move(*option));
        }
    }
    return result;
}

} // namespace quillmere::EditorCategories
