#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace platform {

/// Program and arguments that open what the user's desktop has for the programs started at login;
/// nothing where it has no such page or the page's program is not installed. `currentDesktop` and
/// `searchPath` are the values of `XDG_CURRENT_DESKTOP` and `PATH`.
[[nodiscard]] std::optional<std::vector<std::string>>
loginItemsSettings(std::string_view currentDesktop, std::string_view searchPath);

} // namespace platform
