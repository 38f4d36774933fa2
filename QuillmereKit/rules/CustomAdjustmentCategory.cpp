#include "QuillmereKit/rules/CustomAdjustmentCategory.h"

#include "Platform/base/Base64.h"
#include "Platform/text/Characters.h"
#include "Platform/text/Utf8.h"
#include "Platform/text/WhiteSpace.h"

#include <utility>

namespace quillmere {

namespace {

constexpr std::string_view prefix = "custom:";

std::string normalizedTitle(std::string_view title) {
    std::string joined;
    for (const std::string_view piece : platform::splitAtWhiteSpace(title)) {
        joined += joined.empty() ? "" : " ";
        joined += piece;
    }
    joined.resize(
        platform::firstCharacters(joined, CustomAdjustmentCategory::maximumTitleLength).size());
    return joined;
}

} // namespace

CustomAdjustmentCategory::CustomAdjustmentCategory(std::string title, std::string rawValue)
    : title_(std::move(title)), rawValue_(std::move(rawValue)) {
}

std::optional<CustomAdjustmentCategory>
CustomAdjustmentCategory::fromTitle(std::string_view title) {
    std::string normalized = normalizedTitle(title);
    if (normalized.empty()) {
        return std::nullopt;
    }
    std::string raw = std::string(prefix) + platform::base64::encode(normalized);
    return CustomAdjustmentCategory(std::move(normalized), std::move(raw));
}

std::optional<CustomAdjustmentCategory>
CustomAdjustmentCategory::fromRawValue(std::string_view rawValue) {
    if (!rawValue.starts_with(prefix)) {
        return std::nullopt;
    }
    const auto title = platform::base64::decode(rawValue.substr(prefix.size()));
    return title && platform::isUtf8(*title) ? fromTitle(*title) : std::nullopt;
}

} // namespace quillmere
