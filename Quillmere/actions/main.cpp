#include "Quillmere/actions/ActionProgram.h"
#include "Quillmere/actions/CommandLine.h"

#include <cstdio>
#include <span>

int main(int argc, char** argv) {
    constexpr int badUsage = 2;
    const auto line = quillmere::CommandLine::parse(
        std::span<const char* const>(argv, static_cast<std::size_t>(argc)).subspan(1));
    if (!line) {
        std::fputs(quillmere::CommandLine::usage, stderr);
        return badUsage;
    }
    return quillmere::ActionProgram::run(*line);
}
