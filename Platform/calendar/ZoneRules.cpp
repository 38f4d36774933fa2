#include "Platform/calendar/ZoneRules.h"

#include <cctz/zone_info_source.h>

#include <algorithm>
#include <charconv>
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

/// Takes a zone abbreviation: three or more letters, or anything between angle brackets.
bool skipAbbreviation(std::string_view& text) {
    const bool quoted = !text.empty() && text.front() == '<';
    const auto isLetter = [](char c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z'); };
    const auto end = quoted
                         ? text.find('>')
                         : static_cast<std::size_t>(
                               std::find_if_not(text.begin(), text.end(), isLetter) - text.begin());
    if (end == std::string_view::npos || end < 3)
        return false;
    text.remove_prefix(quoted ? end + 1 : end);
    return true;
}

std::optional<int> takeNumber(std::string_view& text, int greatest) {
    int value = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (error != std::errc{} || value < 0 || value > greatest)
        return std::nullopt;
    text.remove_prefix(static_cast<std::size_t>(end - text.data()));
    return value;
}

/// Takes "[+-]hh[:mm[:ss]]" and answers it in seconds.
std::optional<int> takeOffset(std::string_view& text) {
    const bool negative = !text.empty() && text.front() == '-';
    if (negative || (!text.empty() && text.front() == '+'))
        text.remove_prefix(1);
    int seconds = 0;
    for (const auto& [unit, greatest] : {std::pair{3600, 24}, {60, 59}, {1, 59}}) {
        if (unit != 3600) {
            if (text.empty() || text.front() != ':')
                break;
            text.remove_prefix(1);
        }
        const auto value = takeNumber(text, greatest);
        if (!value)
            return std::nullopt;
        seconds += *value * unit;
    }
    return negative ? -seconds : seconds;
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

std::optional<cctz::time_zone> standardTimeOfPosixRule(std::string_view rule) {
    if (!skipAbbreviation(rule))
        return std::nullopt;
    const auto secondsWest = takeOffset(rule);
    if (!secondsWest)
        return std::nullopt;
    return cctz::fixed_time_zone(std::chrono::seconds(-*secondsWest));
}

} // namespace platform

namespace cctz_extension {
// The definition by which cctz asks a program for zone data.
ZoneInfoSourceFactory zone_info_source_factory = platform::sourceOfBytesOrFile;
} // namespace cctz_extension
