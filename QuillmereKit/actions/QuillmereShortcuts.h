#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace quillmere {

/// The ready-made runs of `AdjustTimeBankIntent`, as launchers, search boxes and voice offer them.
namespace QuillmereShortcuts {

struct Shortcut {
    std::string_view id; ///< also the name of the desktop file's action; frozen
    std::int64_t minutes;
    /// How a person asks for it, with `applicationNameToken` where the application is named.
    std::array<std::string_view, 2> phrases;
    std::string_view shortTitle;
    std::string_view symbol;
};

inline constexpr std::string_view applicationNameToken = "${applicationName}";

/// All of them, in the order they are offered.
[[nodiscard]] std::span<const Shortcut> all();

/// The shortcut with this id, or null.
[[nodiscard]] const Shortcut* find(std::string_view id);

/// A phrase as it is shown and spoken.
[[nodiscard]] std::string phraseText(std::string_view phrase, std::string_view applicationName);

/// The shortcuts that someone means who has typed these terms so far, in the order of `all`: every
/// typed word begins a word of the short title, or every one begins a word of the same phrase. Case
/// does not matter. A term may hold several words; where there are none, nothing is meant.
[[nodiscard]] std::vector<const Shortcut*> matching(std::span<const std::string> terms,
                                                    std::string_view applicationName);

} // namespace QuillmereShortcuts

} // namespace quillmere
