#pragma once

#include <string>
#include <string_view>

namespace platform {

/// Whether the bytes are UTF-8 as the Unicode Standard defines it: shortest forms only, no
/// surrogates, nothing above U+10FFFF.
[[nodiscard]] bool isUtf8(std::string_view bytes);

/// The bytes with each maximal part that is not UTF-8 replaced by U+FFFD.
[[nodiscard]] std::string repairedUtf8(std::string_view bytes);

} // namespace platform
