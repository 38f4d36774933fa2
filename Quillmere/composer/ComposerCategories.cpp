#include "Quillmere/composer/ComposerCategories.h"

#include "QuillmereKit/rules/AdjustmentKindConfiguration.h"
#include "QuillmereKit/rules/CustomAdjustmentCategoryConfiguration.h"

#include <algorithm>

namespace quillmere::ComposerCategories {

std::vector<AdjustmentCategoryOption> shown(std::string_view visibleKindsRawValue,
                                            std::string_view customCategoriesRawValue) {
    std::vector<AdjustmentCategoryOption> result;
    const auto visible = AdjustmentKindConfiguration::kinds(visibleKindsRawValue);
    for (const BalanceAdjustmentKind kind : AdjustmentKindConfiguration::configurableKinds) {
        if (visible.contains(kind)) {
            result.push_back(AdjustmentCategoryOption::builtIn(kind));
        }
    }
    for (const auto& category :
         CustomAdjustmentCategoryConfiguration::categories(customCategoriesRawValue)) {
        if (auto option = AdjustmentCategoryOption::resolve(category.rawValue())) {
            result.push_back(std::move(*option));
        }
    }
    return result;
}

std::vector<AdjustmentCategoryOption> options(std::string_view visibleKindsRawValue,
                                              std::string_view customCategoriesRawValue) {
    auto result = shown(visibleKindsRawValue, customCategoriesRawValue);
    if (result.empty()) {
        result.push_back(AdjustmentCategoryOption::builtIn(BalanceAdjustmentKind::other));
    }
    return result;
}

std::string valid(std::string_view rawValue, std::span<const AdjustmentCategoryOption> options) {
    const bool offered =
        std::ranges::find(options, rawValue, &AdjustmentCategoryOption::rawValue) != options.end();
    if (offered) {
        return std::string(rawValue);
    }
    return options.empty() ? "other" : options.front().rawValue;
}

} // namespace quillmere::ComposerCategories
