#include "Platform/dbus/MessageReader.h"

#include "Platform/dbus/BusError.h"

#include <systemd/sd-bus.h>

#include <cerrno>

namespace platform::dbus {

namespace {

/// What sd-bus answers at the end of the arguments is 0, not an error.
void require(int result) {
    checked(result == 0 ? -ENXIO : result, "read an argument");
}

} // namespace

void MessageReader::fixed(char code, void* value) {
    require(::sd_bus_message_read_basic(message_, code, value));
}

std::string MessageReader::string() {
    const char* text = nullptr;
    require(::sd_bus_message_read_basic(message_, SD_BUS_TYPE_STRING, static_cast<void*>(&text)));
    return text;
}

void MessageReader::enterArray(const std::string& elementSignature) {
    require(
        ::sd_bus_message_enter_container(message_, SD_BUS_TYPE_ARRAY, elementSignature.c_str()));
}

bool MessageReader::hasMore() const {
    return checked(::sd_bus_message_at_end(message_, 0), "read an array") == 0;
}

void MessageReader::exitArray() {
    checked(::sd_bus_message_exit_container(message_), "read an array");
}

} // namespace platform::dbus
