#include "Platform/log/Log.h"

#include <cstdlib>
#include <utility>

namespace platform {

namespace {

bool showsPrivateTexts() {
    // NOLINTNEXTLINE(concurrency-mt-unsafe): nothing here changes the environment
    const char* value = std::getenv("QUILLMERE_LOG_PRIVATE");
    return value != nullptr && std::string_view(value) == "1";
}

} // namespace

Log::Log(LogSink& sink, std::string subsystem, std::string category)
    : sink_(&sink), subsystem_(std::move(subsystem)), category_(std::move(category)) {
}

void Log::write(LogLevel level, std::string_view message) const {
    sink_->write({subsystem_, category_, level, message});
}

void Log::write(LogLevel level, std::string_view message, PrivateText detail) const {
    std::string whole(message);
    whole += showsPrivateTexts() ? detail.text : "<private>";
    write(level, whole);
}

} // namespace platform
