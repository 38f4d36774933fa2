#pragma once

#include "Platform/log/Log.h"

#include <mutex>
#include <string>
#include <vector>

namespace platform {

/// Keeps log entries in memory, for tests. May be used from any thread.
class MemoryLogSink final : public LogSink {
public:
    /// A log entry with texts of its own.
    struct Entry {
        std::string subsystem;
        std::string category;
        LogLevel level = LogLevel::standard;
        std::string message;

        friend bool operator==(const Entry&, const Entry&) = default;
    };

    void write(const LogEntry& entry) noexcept override;
    /// What was written so far, oldest first.
    [[nodiscard]] std::vector<Entry> entries() const;

private:
    mutable std::mutex mutex_;
    std::vector<Entry> entries_;
};

} // namespace platform
