#pragma once

#include "Platform/store/RowKey.h"

#include <array>
#include <charconv>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace quillmere {

/// Words of the small notes a store keeps: split by one space, numbers in decimal.
namespace NoteWords {

/// Takes the first word away from the text, with the space behind it.
[[nodiscard]] std::string_view take(std::string_view& text);

/// A number that reads back as the same value.
template <class Number>
[[nodiscard]] std::string text(Number number) {
    std::array<char, 64> digits{};
    const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), number);
    return {digits.data(), end.ptr};
}

/// The number a whole word spells, or nothing.
template <class Number>
[[nodiscard]] std::optional<Number> number(std::string_view word) {
    Number value{};
    const auto [end, error] = std::from_chars(word.data(), word.data() + word.size(), value);
    return error == std::errc{} && end == word.data() + word.size() ? std::optional(value)
                                                                    : std::nullopt;
}

/// Keys of rows as one word, joined by commas, and back.
[[nodiscard]] std::string list(const std::vector<platform::store::RowKey>& keys);
[[nodiscard]] std::vector<platform::store::RowKey> keys(std::string_view list);

} // namespace NoteWords

} // namespace quillmere
