#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <string>

namespace quillmere {

/// The four one-tap amounts, in minutes.
namespace QuickActionConfiguration {

using Presets = std::array<std::int64_t, 4>;

inline constexpr Presets defaultMinutes{15, 30, 60, 120};

/// The amounts a preset may have, ascending.
inline constexpr std::array<std::int64_t, 13> supportedMinutes{5,  10,  15,  20,  30,  45, 60,
                                                               90, 120, 180, 240, 360, 480};

/// Four supported amounts in the order given: missing ones are the defaults, each becomes the
/// nearest supported amount (the smaller on a tie), further ones are ignored.
[[nodiscard]] Presets normalized(std::span<const std::int64_t> minutes);

/// "45 min", "1 hr", "2 hrs", "1 hr 30 min".
[[nodiscard]] std::string displayName(std::int64_t minutes);

} // namespace QuickActionConfiguration

} // namespace quillmere
