#pragma once

#include <string_view>

namespace quillmere {

/// Ends the process with a message on standard error: for faults of the program, never of its
/// input.
[[noreturn]] void fatal(std::string_view message);

} // namespace quillmere
