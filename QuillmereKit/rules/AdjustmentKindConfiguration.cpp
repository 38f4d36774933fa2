#include "QuillmereKit/rules/AdjustmentKindConfiguration.h"

#include <algorithm>

namespace quillmere::AdjustmentKindConfiguration {

namespace {

std::set<BalanceAdjustmentKind> allConfigurable() {
    return {configurableKinds.begin(), configurableKinds.end()};
}

bool isConfigurable(BalanceAdjustmentKind kind) {
    return std::ranges::find(configurableKinds, kind) != configurableKinds.end();
}

} // namespace

std::string rawValue(const std::set<BalanceAdjustmentKind>& kinds) {
    std::string text;
    for (const BalanceAdjustmentKind kind : configurableKinds) {
        if (kinds.contains(kind)) {
            text += text.empty() ? "" : ",";
            text += quillmere::rawValue(kind);
        }
    }
    return text;
}

const std::string& defaultRawValue() {
    static const std::string text = rawValue(allConfigurable());
    return text;
}

std::set<BalanceAdjustmentKind> kinds(std::string_view rawValue) {
    std::set<BalanceAdjustmentKind> found;
    while (!rawValue.empty()) {
        const std::string_view name = rawValue.substr(0, rawValue.find(','));
        rawValue.remove_prefix(std::min(name.size() + 1, rawValue.size()));
        const auto kind = BalanceAdjustmentKinds::fromRawValue(name);
        if (kind && behavior(*kind) == AdjustmentCategoryBehavior::credit) {
            return allConfigurable();
        }
        if (kind && isConfigurable(*kind)) {
            found.insert(*kind);
        }
    }
    return found;
}

} // namespace quillmere::AdjustmentKindConfiguration
