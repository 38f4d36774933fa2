#pragma once

#include <cctz/time_zone.h>

#include <optional>
#include <string_view>

namespace platform {

/// The rules that a POSIX rule (POSIX.1-2017, 8.3) spells out, such as "EST5EDT,M3.2.0,M11.1.0" or
/// "<+0330>-3:30", or nothing when it is not one. Without dates summer time is that of the United
/// States, as for the C library. For use inside this folder.
[[nodiscard]] std::optional<cctz::time_zone> zoneRulesOfPosixRule(std::string_view rule);

} // namespace platform
