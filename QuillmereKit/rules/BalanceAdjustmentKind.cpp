#include "QuillmereKit/rules/BalanceAdjustmentKind.h"

#include <algorithm>

namespace quillmere {

namespace {

struct KindFacts {
    std::string_view rawValue;
    std::string_view title;
    std::string_view systemImage;
    AdjustmentCategoryBehavior behavior;
};

const KindFacts& facts(BalanceAdjustmentKind kind) {
    using enum AdjustmentCategoryBehavior;
    static constexpr std::array<KindFacts, BalanceAdjustmentKinds::all.size()> table{{
        {"manual", "Manual adjustment", "plus.forwardslash.minus", manual},
        {"appointment", "Appointment", "calendar.badge.clock", debit},
        {"personalErrands", "Personal errands", "figure.walk", debit},
        {"longLunch", "Long lunch", "fork.knife", debit},
        {"other", "Other", "ellipsis.circle", debit},
        {"holiday", "Public holiday", "calendar.badge.checkmark", credit},
        {"paidLeave", "Paid leave", "sun.max", credit},
        {"sickLeave", "Sick leave", "cross.case", credit},
    }};
    return table.at(static_cast<std::size_t>(kind));
}

} // namespace

std::string_view rawValue(BalanceAdjustmentKind kind) {
    return facts(kind).rawValue;
}

std::string_view title(BalanceAdjustmentKind kind) {
    return facts(kind).title;
}

std::string_view systemImage(BalanceAdjustmentKind kind) {
    return facts(kind).systemImage;
}

AdjustmentCategoryBehavior behavior(BalanceAdjustmentKind kind) {
    return facts(kind).behavior;
}

std::optional<BalanceAdjustmentKind>
BalanceAdjustmentKinds::fromRawValue(std::string_view rawValue) {
    const auto* found = std::ranges::find(
        all, rawValue, [](BalanceAdjustmentKind kind) { return quillmere::rawValue(kind); });
    return found == all.end() ? std::nullopt : std::optional(*found);
}

} // namespace quillmere
