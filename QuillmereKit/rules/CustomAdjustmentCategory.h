#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace quillmere {

/// A category the user named. Its normalised title is its identity; renaming makes another
/// category. Custom categories always take time.
///
/// The raw value is "custom:" and the padded standard base64 (RFC 4648) of the title's UTF-8 bytes.
class CustomAdjustmentCategory {
public:
    static constexpr std::size_t maximumTitleLength = 40; ///< user-perceived characters
    static constexpr std::size_t maximumCount = 20;

    /// Runs of white space become one space, the ends lose theirs, and the first 40 characters are
    /// kept. A cut that falls behind a space leaves that space. Nothing when no text is left.
    [[nodiscard]] static std::optional<CustomAdjustmentCategory> fromTitle(std::string_view title);

    /// Reads any text of the raw-value form and normalises its title, so the result's raw value may
    /// differ from the given one. Nothing when the text is not of that form.
    [[nodiscard]] static std::optional<CustomAdjustmentCategory>
    fromRawValue(std::string_view rawValue);

    [[nodiscard]] const std::string& title() const { return title_; }
    [[nodiscard]] const std::string& rawValue() const { return rawValue_; }
    [[nodiscard]] const std::string& id() const { return rawValue_; }

    friend bool operator==(const CustomAdjustmentCategory&,
                           const CustomAdjustmentCategory&) = default;

private:
    CustomAdjustmentCategory(std::string title, std::string rawValue);

    std::string title_;
    std::string rawValue_;
};

} // namespace quillmere
