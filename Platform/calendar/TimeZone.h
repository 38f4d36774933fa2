#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace cctz {
class time_zone;
}

namespace platform {

/// A time zone of the system's zone data. An immutable value; copies share the loaded rules.
class TimeZone {
public:
    /// The zone with the given IANA name ("Europe/Berlin"), or nothing when the system has no such
    /// zone. Reads the zone's file at each call, so that updated rules are seen.
    [[nodiscard]] static std::optional<TimeZone> named(std::string_view name);

    /// The zone of a zone file (RFC 8536), or nothing when the file is none. Its name is the IANA
    /// name where the path is, or links to, a file below a folder "zoneinfo"; otherwise the path.
    [[nodiscard]] static std::optional<TimeZone> fromFile(const std::string& path);

    /// The user's zone: `TZ` when set, else /etc/localtime, else UTC. Reads the system anew at each
    /// call, so that a changed zone is seen.
    ///
    /// `TZ` may hold, with or without a leading colon, an IANA name, the path of a zone file or a
    /// rule such as "CET-1CEST,M3.5.0,M10.5.0/3" (POSIX.1-2017, 8.3). What makes no sense is UTC,
    /// as for the C library.
    [[nodiscard]] static TimeZone system();

    [[nodiscard]] static TimeZone utc();

    /// The IANA name where one is known, else a name that stays the same for the same rules.
    [[nodiscard]] const std::string& name() const { return name_; }

    [[nodiscard]] const cctz::time_zone& rules() const { return *rules_; }

    /// Equal zones have the same name and the same rules.
    friend bool operator==(const TimeZone& a, const TimeZone& b);

private:
    TimeZone(std::string name, const cctz::time_zone& rules);

    std::string name_;
    std::shared_ptr<const cctz::time_zone> rules_;
};

} // namespace platform
