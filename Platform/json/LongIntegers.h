#pragma once

#include <string>
#include <string_view>

namespace platform::json {

/// The text with ".0" behind every whole number that may be beyond 64 bits, which makes doubles of
/// them; empty when there is none.
[[nodiscard]] std::string withLongIntegersAsDoubles(std::string_view text);

} // namespace platform::json
