#pragma once

#include <string_view>
#include <vector>

namespace platform {

// White space is what has the Unicode property White_Space: the general categories Zs, Zl and Zp
// with U+0009 … U+000D and U+0085. So no-break spaces and all line breaks are, and U+200B (zero
// width space), U+2060 and U+FEFF, which are format characters, are not. Texts are UTF-8; bytes
// that are not count as something else than white space. The results refer to the text that was
// given.

/// The text without white space at both ends.
[[nodiscard]] std::string_view trimmed(std::string_view text);

/// The pieces between white space, none of them empty.
[[nodiscard]] std::vector<std::string_view> splitAtWhiteSpace(std::string_view text);

} // namespace platform
