#include "QuillmereKit/rules/AdjustmentCategoryValidation.h"

#include "QuillmereKit/rules/BalanceAdjustmentKind.h"
#include "QuillmereKit/rules/CustomAdjustmentCategory.h"

#include <algorithm>

namespace quillmere::AdjustmentCategoryValidation {

namespace {

AdjustmentCategoryBehavior behaviorOf(std::string_view rawValue) {
    if (const auto kind = BalanceAdjustmentKinds::fromRawValue(rawValue)) {
        return behavior(*kind);
    }
    return CustomAdjustmentCategory::fromRawValue(rawValue) ? AdjustmentCategoryBehavior::debit
                                                            : AdjustmentCategoryBehavior::manual;
}

} // namespace

std::string normalizedRawValue(std::string_view rawValue) {
    if (BalanceAdjustmentKinds::fromRawValue(rawValue)) {
        return std::string(rawValue);
    }
    const auto custom = CustomAdjustmentCategory::fromRawValue(rawValue);
    return custom ? custom->rawValue()
                  : std::string(quillmere::rawValue(BalanceAdjustmentKind::manual));
}

std::int64_t normalizedMinutes(std::int64_t minutes, std::string_view rawValue) {
    switch (behaviorOf(rawValue)) {
    case AdjustmentCategoryBehavior::credit:
        return std::clamp<std::int64_t>(minutes, 0, maximumSignedCategoryMinutes);
    case AdjustmentCategoryBehavior::debit:
        return std::clamp<std::int64_t>(minutes, -maximumSignedCategoryMinutes, 0);
    case AdjustmentCategoryBehavior::manual:
        break;
    }
    return std::clamp(minutes, -maximumManualMinutes, maximumManualMinutes);
}

} // namespace quillmere::AdjustmentCategoryValidation
