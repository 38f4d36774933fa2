#pragma once

#include <string_view>

namespace platform {

/// Whether two texts are the same to an English reader who does not mind upper and lower case: the
/// Unicode Collation Algorithm (UTS #10) with English rules at its second level. Accents count;
/// case and the way a character is encoded do not. Bytes that are not UTF-8 read as U+FFFD.
[[nodiscard]] bool equalForReaderIgnoringCase(std::string_view a, std::string_view b);

} // namespace platform
