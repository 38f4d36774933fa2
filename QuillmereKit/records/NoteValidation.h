#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace quillmere {

/// The length of notes, counted in user-perceived characters.
namespace NoteValidation {

inline constexpr std::size_t maximumCharacterCount = 280;

/// Without white space and line breaks at both ends, then at most the first 280 characters. The cut
/// may leave white space at the end.
[[nodiscard]] std::string normalized(std::string_view note);
/// The same as a part of the given text.
[[nodiscard]] std::string_view normalizedPart(std::string_view note);

/// At most the first 280 characters, not trimmed: for a text being typed.
[[nodiscard]] std::string limited(std::string_view note);

} // namespace NoteValidation

} // namespace quillmere
