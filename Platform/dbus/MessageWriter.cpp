#include "Platform/dbus/MessageWriter.h"

#include "Platform/dbus/BusError.h"
#include "Platform/text/Utf8.h"

#include <systemd/sd-bus.h>

namespace platform::dbus {

void MessageWriter::fixed(char code, const void* value) {
    checked(::sd_bus_message_append_basic(message_, code, value), "write an argument");
}

void MessageWriter::string(const std::string& text) {
    fixed(SD_BUS_TYPE_STRING, repairedUtf8(text).c_str());
}

void MessageWriter::open(Container container, const std::string& signature) {
    checked(
        ::sd_bus_message_open_container(message_, static_cast<char>(container), signature.c_str()),
        "write a container");
}

void MessageWriter::close() {
    checked(::sd_bus_message_close_container(message_), "write a container");
}

} // namespace platform::dbus
