#include "Platform/calendar/TimeZone.h"

#include "Platform/calendar/PosixRule.h"
#include "Platform/calendar/ZoneRules.h"

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>

namespace platform {
namespace {

namespace fs = std::filesystem;

constexpr std::string_view zoneFolderMark = "/zoneinfo/";
constexpr auto systemZoneLink = "/etc/localtime";
constexpr std::size_t greatestZoneFile = 1 << 20;
constexpr int mostLinks = 16;

std::optional<std::string> environment(const char* variable) {
    const char* value =
        std::getenv(variable); // NOLINT(concurrency-mt-unsafe): nothing here sets it
    return value ? std::optional<std::string>(value) : std::nullopt;
}

std::string zoneFolder() {
    const auto folder = environment("TZDIR");
    return folder && !folder->empty() ? *folder : "/usr/share/zoneinfo";
}

bool isZoneName(std::string_view name) {
    const auto isAllowed = [](char c) {
        return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') ||
               c == '/' || c == '_' || c == '-' || c == '+';
    };
    return !name.empty() && name.front() != '/' && std::all_of(name.begin(), name.end(), isAllowed);
}

std::optional<cctz::time_zone> rulesOfFile(const fs::path& path) {
    std::error_code error;
    if (!fs::is_regular_file(path, error) || fs::file_size(path, error) > greatestZoneFile || error)
        return std::nullopt;
    std::ifstream file(path, std::ios::binary);
    const std::string bytes{std::istreambuf_iterator<char>(file), {}};
    return file ? zoneRulesFromData(bytes) : std::nullopt;
}

/// The IANA name that the path, or a link on its way, spells out.
std::optional<std::string> zoneNameOfPath(fs::path path) {
    std::error_code error;
    for (int links = 0; links < mostLinks && !error; ++links) {
        const auto& text = path.native();
        const auto mark = text.rfind(zoneFolderMark);
        if (mark != std::string::npos && isZoneName(text.substr(mark + zoneFolderMark.size())))
            return text.substr(mark + zoneFolderMark.size());
        path = path.parent_path() / fs::read_symlink(path, error);
    }
    return std::nullopt;
}

} // namespace

TimeZone::TimeZone(std::string name, const cctz::time_zone& rules)
    : name_(std::move(name)), rules_(std::make_shared<const cctz::time_zone>(rules)) {
}

std::optional<TimeZone> TimeZone::named(std::string_view name) {
    if (name == "UTC")
        return utc();
    if (!isZoneName(name))
        return std::nullopt;
    const auto rules = rulesOfFile(fs::path(zoneFolder()) / name);
    return rules ? std::optional(TimeZone(std::string(name), *rules)) : std::nullopt;
}

std::optional<TimeZone> TimeZone::fromFile(const std::string& path) {
    const auto rules = rulesOfFile(path);
    if (!rules)
        return std::nullopt;
    return TimeZone(zoneNameOfPath(path).value_or(path), *rules);
}

TimeZone TimeZone::system() {
    const auto setting = environment("TZ");
    if (!setting)
        return fromFile(systemZoneLink).value_or(utc());
    const auto text = setting->substr(setting->starts_with(':') ? 1 : 0);
    if (text.starts_with('/'))
        return fromFile(text).value_or(utc());
    if (auto zone = named(text))
        return *std::move(zone);
    const auto rules = zoneRulesOfPosixRule(text);
    return rules ? TimeZone(text, *rules) : utc();
}

TimeZone TimeZone::utc() {
    return {"UTC", cctz::utc_time_zone()};
}

bool operator==(const TimeZone& a, const TimeZone& b) {
    return a.name_ == b.name_ && *a.rules_ == *b.rules_;
}

} // namespace platform
