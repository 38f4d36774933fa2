#pragma once

#include <cctz/time_zone.h>

#include <optional>
#include <string>

namespace platform {

/// The rules held in the bytes of a zone file (RFC 8536), or nothing when they are not one. The
/// same bytes give the same rules object. For use inside this folder.
[[nodiscard]] std::optional<cctz::time_zone> zoneRulesFromData(const std::string& bytes);

} // namespace platform
