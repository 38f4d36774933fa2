#include "Quillmere/actions/CommandLine.h"

#include <string_view>

namespace quillmere {

std::optional<CommandLine> CommandLine::parse(std::span<const char* const> arguments) {
    if (arguments.empty()) {
        return CommandLine{};
    }
    const std::string_view first = arguments.front();
    if (first == "--shortcut" && arguments.size() == 2) {
        return CommandLine{Task::shortcut, arguments[1]};
    }
    if (first == "--version" && arguments.size() == 1) {
        return CommandLine{Task::version, {}};
    }
    if (first == "--help" && arguments.size() == 1) {
        return CommandLine{Task::help, {}};
    }
    return std::nullopt;
}

} // namespace quillmere
