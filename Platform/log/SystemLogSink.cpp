#include "Platform/log/Log.h"

#include <sys/uio.h>
#include <unistd.h>

// Our own fields are the message's context; the place in this file would only mislead.
#define SD_JOURNAL_SUPPRESS_LOCATION
#include <systemd/sd-journal.h>

#include <array>
#include <cstdio>

namespace platform {

namespace {

constexpr const char* journalSocket = "/run/systemd/journal/socket";

char priorityOf(LogLevel level) {
    switch (level) {
    case LogLevel::error:
        return '3';
    case LogLevel::fault:
        return '2';
    case LogLevel::standard:
        break;
    }
    return '5';
}

std::string field(std::string_view name, std::string_view value) {
    return std::string(name).append("=").append(value);
}

bool sendToJournal(const LogEntry& entry) {
    // The library reports success when there is no journal at all.
    if (::access(journalSocket, W_OK) != 0) {
        return false;
    }
    std::array fields = {
        field("MESSAGE", entry.message),
        field("PRIORITY", std::string(1, priorityOf(entry.level))),
        field("SUBSYSTEM", entry.subsystem),
        field("CATEGORY", entry.category),
        field("SYSLOG_IDENTIFIER", "quillmere"),
    };
    std::array<iovec, fields.size()> vectors{};
    for (std::size_t index = 0; index < fields.size(); ++index) {
        vectors[index] = {fields[index].data(), fields[index].size()};
    }
    return ::sd_journal_sendv(vectors.data(), static_cast<int>(vectors.size())) == 0;
}

void sendToStandardError(const LogEntry& entry) {
    std::string line = "<";
    line += priorityOf(entry.level);
    line.append("> ").append(entry.subsystem).append(" ").append(entry.category);
    line.append(": ").append(entry.message).append("\n");
    std::fwrite(line.data(), 1, line.size(), stderr);
}

} // namespace

void SystemLogSink::write(const LogEntry& entry) noexcept {
    try {
        if (!sendToJournal(entry)) {
            sendToStandardError(entry);
        }
    } catch (...) { // NOLINT(bugprone-empty-catch): out of memory; there is nowhere left to tell
    }
}

} // namespace platform
