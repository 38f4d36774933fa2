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
    /// zone.
    [[nodiscard]] static std::optional<TimeZone> named(std::string_view name);

    /// The user's zone: `TZ` when set, else /etc/localtime, else UTC. Reads the system anew at each
    /// call, so that a changed zone is seen.
    [[nodiscard]] static TimeZone system();

    [[nodiscard]] static TimeZone utc();

    /// The IANA name where one is known, else a name that stays the same for the same rules.
    [[nodiscard]] const std::string& name() const { return name_; }

    [[nodiscard]] const cctz::time_zone& rules() const { return *rules_; }

    friend bool operator==(const TimeZone& a, const TimeZone& b) { return a.name_ == b.name_; }

private:
    TimeZone(std::string name, std::shared_ptr<const cctz::time_zone> rules);

    std::string name_;
    std::shared_ptr<const cctz::time_zone> rules_;
};

} // namespace platform
