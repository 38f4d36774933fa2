#pragma once

#include <cstddef>
#include <string_view>

namespace platform {

// A character is what a reader takes for one: an extended grapheme cluster of Unicode Standard
// Annex #29. A letter with its combining marks, a flag, a family emoji and CR LF are one each.
// Texts are UTF-8; bytes that are not count as replacement characters would in their place.

/// The first `count` characters, or the whole text when it has fewer. Refers to `text`.
[[nodiscard]] std::string_view firstCharacters(std::string_view text, std::size_t count);

[[nodiscard]] std::size_t characterCount(std::string_view text);

} // namespace platform
