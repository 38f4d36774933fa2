#pragma once

#include "Platform/dbus/Interface.h"

#include <systemd/sd-bus.h>

#include <memory>
#include <string>
#include <vector>

namespace platform::dbus {

/// An interface at a path of a connection, for as long as the object lives.
class ExportedObject {
public:
    /// The connection must outlive the object. Throws `BusError`.
    ExportedObject(sd_bus* bus, const std::string& path, Interface interface);
    ~ExportedObject();
    ExportedObject(const ExportedObject&) = delete;
    ExportedObject& operator=(const ExportedObject&) = delete;

private:
    Interface interface_;
    /// The names of each method's arguments, each with a terminating null.
    std::vector<std::string> names_;
    std::vector<sd_bus_vtable> table_;
    sd_bus_slot* slot_ = nullptr;
};

} // namespace platform::dbus
