#include "Platform/log/MemoryLogSink.h"

namespace platform {

void MemoryLogSink::write(const LogEntry& entry) noexcept {
    const std::scoped_lock lock(mutex_);
    entries_.push_back({std::string(entry.subsystem), std::string(entry.category), entry.level,
                        std::string(entry.message)});
}

std::vector<MemoryLogSink::Entry> MemoryLogSink::entries() const {
    const std::scoped_lock lock(mutex_);
    return entries_;
}

} // namespace platform
