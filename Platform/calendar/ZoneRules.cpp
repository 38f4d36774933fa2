#include "Platform/calendar/ZoneRules.h"

#include <cctz/zone_info_source.h>

#include <algorithm>
#include <cstring>
#include <functional>
#include <memory>

namespace platform {
namespace {

/// The bytes that the load going on in this thread is to see. cctz calls the source factory in the
/// thread of the load.
thread_local const std::string* bytesBeingLoaded = nullptr;

class BytesSource final : public cctz::ZoneInfoSource {
public:
    explicit BytesSource(std::string_view bytes) : rest_(bytes) {}

    std::size_t Read(void* target, std::size_t size) override {
        const auto count = std::min(size, rest_.size());
        std::memcpy(target, rest_.data(), count);
        rest_.remove_prefix(count);
        return count;
    }

    int Skip(std::size_t offset) override {
        if (offset > rest_.size())
            return -1;
        rest_.remove_prefix(offset);
        return 0;
    }

private:
    std::string_view rest_;
};

std::unique_ptr<cctz::ZoneInfoSource> sourceOfBytesOrFile(
    const std::string& name,
    const std::function<std::unique_ptr<cctz::ZoneInfoSource>(const std::string&)>& fromFile) {
    if (bytesBeingLoaded)
        return std::make_unique<BytesSource>(*bytesBeingLoaded);
    return fromFile(name);
}

} // namespace

std::optional<cctz::time_zone> zoneRulesFromData(const std::string& bytes) {
    // cctz keeps what it loaded by name for good, so the name is one of the content.
    const auto name = "content:" + std::to_string(std::hash<std::string>{}(bytes)) + ':' +
                      std::to_string(bytes.size());
    bytesBeingLoaded = &bytes;
    cctz::time_zone rules;
    const bool loaded = cctz::load_time_zone(name, &rules);
    bytesBeingLoaded = nullptr;
    return loaded ? std::optional(rules) : std::nullopt;
}

} // namespace platform

namespace cctz_extension {
// The definition by which cctz asks a program for zone data.
ZoneInfoSourceFactory zone_info_source_factory = platform::sourceOfBytesOrFile;
} // namespace cctz_extension
