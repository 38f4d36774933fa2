#pragma once

#include <memory>
#include <string>
#include <string_view>

namespace platform {

/// Severity of a log entry, with the syslog priority it is sent as.
enum class LogLevel {
    standard, ///< notice
    error,    ///< err
    fault,    ///< crit
};

/// One log entry on its way to a sink.
struct LogEntry {
    std::string_view subsystem;
    std::string_view category;
    LogLevel level = LogLevel::standard;
    std::string_view message;
};

/// Where log entries go. `write` may be called on any thread and never throws.
class LogSink {
public:
    virtual ~LogSink() = default;
    virtual void write(const LogEntry& entry) noexcept = 0;
};

/// The systemd journal, or standard error where there is no journal.
class SystemLogSink final : public LogSink {
public:
    void write(const LogEntry& entry) noexcept override;
};

/// An argument of a log message that is shown as "<private>" unless private logging is switched on
/// (`QUILLMERE_LOG_PRIVATE=1` in the environment).
struct PrivateText {
    std::string_view text;
};

/// Writes entries of one subsystem and category to a sink, which must outlive it.
class Log {
public:
    Log(LogSink& sink, std::string subsystem, std::string category);

    void write(LogLevel level, std::string_view message) const;
    /// Message, then the private text, redacted unless private logging is on.
    void write(LogLevel level, std::string_view message, PrivateText detail) const;

private:
    LogSink* sink_;
    std::string subsystem_;
    std::string category_;
};

} // namespace platform
