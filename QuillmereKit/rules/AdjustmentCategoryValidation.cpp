#include "QuillmereKit/rules/AdjustmentCategoryValidation.h"

#include "QuillmereKit/rules/AdjustmentCategoryOption.h"

#include <algorithm>

namespace quillmere::AdjustmentCategoryValidation {

std::string normalizedRawValue(std::string_view rawValue) {
    const auto option = AdjustmentCategoryOption::resolve(rawValue);
    return option ? option->rawValue
                  : std::string(quillmere::rawValue(BalanceAdjustmentKind::manual));
}

std::int64_t normalizedMinutes(std::int64_t minutes, std::string_view rawValue) {
    const auto option = AdjustmentCategoryOption::resolve(rawValue);
    switch (option ? option->behavior : AdjustmentCategoryBehavior::manual) {
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
