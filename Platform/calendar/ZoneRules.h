#pragma once

#include <cctz/time_zone.h>

#include <optional>
#include <string>
#include <string_view>

namespace platform {

/// The rules held in the bytes of a zone file (RFC 8536), or nothing when they are not one. The
/// same bytes give the same rules object. For use inside this folder.
[[nodiscard]] std::optional<cctz::time_zone> zoneRulesFromData(const std::string& bytes);

/// The standard time of a POSIX rule such as "EST5EDT,M3.2.0,M11.1.0" or "<+0330>-3:30", or nothing
/// when it is not one. For use inside this folder.
[[nodiscard]] std::optional<cctz::time_zone> standardTimeOfPosixRule(std::string_view rule);

} // namespace platform
