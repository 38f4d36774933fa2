#include "Platform/dbus/BusError.h"

#include <cerrno>
#include <system_error>

namespace platform::dbus {

BusError BusError::ofResult(int result, const std::string& action) {
    const int number = -result;
    const bool isGone = number == ENOTCONN || number == ECONNRESET || number == EPIPE;
    return {isGone ? BusFault::disconnected : BusFault::failed,
            "bus: " + action + ": " + std::generic_category().message(number)};
}

int checked(int result, const char* action) {
    if (result < 0) {
        throw BusError::ofResult(result, action);
    }
    return result;
}

} // namespace platform::dbus
