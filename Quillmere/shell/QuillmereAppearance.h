#pragma once

#include <array>
#include <optional>
#include <string_view>

namespace quillmere {

/// The colour scheme the user chose for the program's windows.
enum class QuillmereAppearance { system, light, dark };

/// The stored form.
[[nodiscard]] std::string_view rawValue(QuillmereAppearance appearance);
[[nodiscard]] std::string_view title(QuillmereAppearance appearance);

namespace QuillmereAppearances {

inline constexpr std::array all{QuillmereAppearance::system, QuillmereAppearance::light,
                                QuillmereAppearance::dark};

/// Whether a stored text overrides the desktop's scheme with the dark one (true) or the light one
/// (false). "system" and unknown texts override nothing.
[[nodiscard]] std::optional<bool> darkOverride(std::string_view storedValue);

} // namespace QuillmereAppearances

} // namespace quillmere
