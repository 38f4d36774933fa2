#include "QuillmereKit/records/LedgerRowText.h"

#include "QuillmereKit/records/BalanceAdjustment.h"
#include "QuillmereKit/rules/DurationFormatting.h"

namespace quillmere::LedgerRowText {

std::string_view direction(std::int64_t minutes) {
    return minutes < 0 ? "Time subtracted" : "Time added";
}

std::string title(const BalanceAdjustment& adjustment) {
    if (!adjustment.note().empty()) {
        return adjustment.note();
    }
    if (adjustment.minutes() < 0) {
        const AdjustmentCategoryOption category = adjustment.category();
        if (category.behavior == AdjustmentCategoryBehavior::debit) {
            return category.title;
        }
    }
    return std::string(direction(adjustment.minutes()));
}

std::string accessibilityLabel(const BalanceAdjustment& adjustment) {
    const std::string& note = adjustment.note();
    return (note.empty() ? std::string(direction(adjustment.minutes())) : note) + ", " +
           DurationFormatting::accessible(static_cast<double>(adjustment.minutes()) * 60.0);
}

std::string_view systemImage(std::int64_t minutes) {
    return minutes < 0 ? "arrow.up.right" : "arrow.down.left";
}

} // namespace quillmere::LedgerRowText
