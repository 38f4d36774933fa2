#pragma once

#include <string>
#include <string_view>

namespace platform {

/// The text in lower case and composed (Unicode normalization form C), by the rules that no
/// language changes: texts that differ only in case, or in how their accents are encoded, give
/// equal bytes. For comparing, not for showing. Bytes that are not UTF-8 become U+FFFD.
[[nodiscard]] std::string lowercasedForComparison(std::string_view text);

} // namespace platform
