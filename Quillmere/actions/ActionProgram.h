#pragma once

#include "Quillmere/actions/CommandLine.h"

#include <chrono>

namespace quillmere {

/// The program that performs the action for scripts, launchers and search boxes. The session bus
/// starts it when it is called, and it ends by itself.
class ActionProgram {
public:
    /// How long it waits for another call before it ends.
    static constexpr std::chrono::seconds idleTime{10};

    /// Does what the command line asks for and answers the exit status.
    [[nodiscard]] static int run(const CommandLine& line);
};

} // namespace quillmere
