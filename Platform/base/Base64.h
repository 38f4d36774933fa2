#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace platform::base64 {

/// The base64 text of `bytes` (RFC 4648, section 4): standard alphabet, padded, without line
/// breaks.
[[nodiscard]] std::string encode(std::string_view bytes);

/// The bytes of a base64 text. Gives nothing for a character outside the alphabet (white space and
/// line breaks included), for padding that is missing, too long or not at the end, and for a length
/// that is not a multiple of four. Unused bits before the padding may be anything, so that texts of
/// careless writers still read; encoding again gives the canonical text.
[[nodiscard]] std::optional<std::string> decode(std::string_view text);

} // namespace platform::base64
