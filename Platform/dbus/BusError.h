#pragma once

#include <stdexcept>
#include <string>

namespace platform::dbus {

/// What went wrong on the bus, as far as callers tell cases apart.
enum class BusFault {
    unreachable,  ///< there is no session bus, or it does not take this program
    disconnected, ///< the bus went away
    failed,       ///< anything else, such as a name or path that is none
};

/// The one exception the bus throws. `what()` names the operation and the reason, for a log.
class BusError final : public std::runtime_error {
public:
    BusError(BusFault fault, const std::string& what) : std::runtime_error(what), fault_(fault) {}

    /// The error of a call of sd-bus: what was tried, and what it answered (a negative errno).
    [[nodiscard]] static BusError ofResult(int result, const std::string& action);

    [[nodiscard]] BusFault fault() const { return fault_; }

private:
    BusFault fault_;
};

/// Answers `result` when it is no error; else throws the `BusError` of it.
int checked(int result, const char* action);

} // namespace platform::dbus
