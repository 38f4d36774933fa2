#include "QuillmereKit/rules/CustomAdjustmentCategoryConfiguration.h"

#include "Platform/json/Document.h"
#include "Platform/json/Writer.h"
#include "Platform/text/LetterCase.h"

#include <optional>
#include <set>

namespace quillmere::CustomAdjustmentCategoryConfiguration {

namespace {

using Categories = std::vector<CustomAdjustmentCategory>;

/// The titles of a JSON array of strings; nothing for any other text.
std::optional<std::vector<std::string>> titles(std::string_view json) try {
    const platform::json::Document document = platform::json::parse(json);
    const auto array = document.root().array();
    if (!array) {
        return std::nullopt;
    }
    std::vector<std::string> found;
    for (const platform::json::Value value : *array) {
        const auto title = value.string();
        if (!title) {
            return std::nullopt;
        }
        found.emplace_back(*title);
    }
    return found;
} catch (const platform::json::JsonError&) {
    return std::nullopt;
}

/// The first of each title, whatever its case, as far as categories may go.
Categories distinct(std::span<const CustomAdjustmentCategory> categories) {
    Categories kept;
    std::set<std::string> seen;
    for (const CustomAdjustmentCategory& category : categories) {
        if (kept.size() < CustomAdjustmentCategory::maximumCount &&
            seen.insert(platform::lowercasedForComparison(category.title())).second) {
            kept.push_back(category);
        }
    }
    return kept;
}

} // namespace

Categories categories(std::string_view rawValue) {
    Categories found;
    for (const std::string& title : titles(rawValue).value_or(std::vector<std::string>{})) {
        if (auto category = CustomAdjustmentCategory::fromTitle(title)) {
            found.push_back(std::move(*category));
        }
    }
    return distinct(found);
}

std::string rawValue(std::span<const CustomAdjustmentCategory> categories) try {
    std::string json;
    platform::json::Writer writer(json, platform::json::Writer::Layout::compact,
                                  platform::json::Writer::Slash::escaped);
    writer.beginArray();
    for (const CustomAdjustmentCategory& category : distinct(categories)) {
        writer.string(category.title());
    }
    writer.endArray();
    return json;
} catch (const platform::json::JsonError&) {
    return std::string(defaultRawValue);
}

} // namespace quillmere::CustomAdjustmentCategoryConfiguration
