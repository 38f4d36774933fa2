#include "QuillmereKit/rules/AdjustmentCategoryOption.h"

#include "QuillmereKit/rules/CustomAdjustmentCategory.h"

namespace quillmere {

AdjustmentCategoryOption AdjustmentCategoryOption::builtIn(BalanceAdjustmentKind kind) {
    return {.rawValue = std::string(quillmere::rawValue(kind)),
            .title = std::string(quillmere::title(kind)),
            .systemImage = std::string(quillmere::systemImage(kind)),
            .behavior = quillmere::behavior(kind)};
}

std::optional<AdjustmentCategoryOption>
AdjustmentCategoryOption::resolve(std::string_view rawValue) {
    if (const auto kind = BalanceAdjustmentKinds::fromRawValue(rawValue)) {
        return builtIn(*kind);
    }
    if (const auto custom = CustomAdjustmentCategory::fromRawValue(rawValue)) {
        return AdjustmentCategoryOption{.rawValue = custom->rawValue(),
                                        .title = custom->title(),
                                        .systemImage = "tag",
                                        .behavior = AdjustmentCategoryBehavior::debit};
    }
    return std::nullopt;
}

} // namespace quillmere
