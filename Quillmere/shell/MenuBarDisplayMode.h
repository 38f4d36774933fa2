#pragma once

#include <array>
#include <string_view>

namespace quillmere {

/// What the tray item shows.
enum class MenuBarDisplayMode { logoAndBalance, logoOnly, balanceOnly };

/// The stored form.
[[nodiscard]] std::string_view rawValue(MenuBarDisplayMode mode);
[[nodiscard]] std::string_view title(MenuBarDisplayMode mode);

namespace MenuBarDisplayModes {

inline constexpr std::array all{MenuBarDisplayMode::logoAndBalance, MenuBarDisplayMode::logoOnly,
                                MenuBarDisplayMode::balanceOnly};

/// The mode with this stored form; the logo with the balance when there is none.
[[nodiscard]] MenuBarDisplayMode of(std::string_view storedValue);

} // namespace MenuBarDisplayModes

} // namespace quillmere
