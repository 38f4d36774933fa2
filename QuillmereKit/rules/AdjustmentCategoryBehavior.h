#pragma once

namespace quillmere {

/// Which sign a category's amounts have.
enum class AdjustmentCategoryBehavior {
    manual, ///< either sign
    credit, ///< adds time: zero or positive
    debit,  ///< takes time: zero or negative
};

} // namespace quillmere
