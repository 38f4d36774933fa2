#pragma once

#include <optional>
#include <span>
#include <string>

namespace quillmere {

/// What the program is started for.
struct CommandLine {
    enum class Task { serve, shortcut, version, help };

    Task task = Task::serve;
    std::string shortcutId; ///< for `shortcut`

    /// Nothing when the arguments, without the program's own name, make no sense.
    [[nodiscard]] static std::optional<CommandLine> parse(std::span<const char* const> arguments);

    static constexpr const char* usage =
        "usage: quillmere-actions [--shortcut ID | --version | --help]\n";
};

} // namespace quillmere
