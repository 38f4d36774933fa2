#include "Platform/dbus/ExportedObject.h"

#include "Platform/dbus/BusError.h"
#include "Platform/dbus/MethodError.h"
#include "Platform/text/Utf8.h"

#include <utility>

namespace platform::dbus {

namespace {

struct MessageRelease {
    void operator()(sd_bus_message* message) const { ::sd_bus_message_unref(message); }
};

void answer(const Interface::Method& method, sd_bus_message* call) {
    sd_bus_message* made = nullptr;
    checked(::sd_bus_message_new_method_return(call, &made), "answer");
    const std::unique_ptr<sd_bus_message, MessageRelease> reply(made);
    MessageReader reader(call);
    MessageWriter writer(made);
    method.call(reader, writer);
    checked(::sd_bus_send(nullptr, made, nullptr), "answer");
}

int onCall(sd_bus_message* call, void* method, sd_bus_error* error) noexcept {
    try {
        answer(*static_cast<const Interface::Method*>(method), call);
        return 1;
    } catch (const MethodError& problem) {
        return ::sd_bus_error_set(error, problem.name().c_str(),
                                  repairedUtf8(problem.what()).c_str());
    } catch (const std::exception& problem) {
        return ::sd_bus_error_set(error, SD_BUS_ERROR_FAILED, repairedUtf8(problem.what()).c_str());
    }
}

std::string joined(const std::vector<std::string>& names) {
    std::string text;
    for (const std::string& name : names) {
        text.append(name).push_back('\0');
    }
    return text;
}

sd_bus_vtable start() {
    sd_bus_vtable row{};
    row.type = _SD_BUS_VTABLE_START;
    row.x.start = {sizeof(sd_bus_vtable), _SD_BUS_VTABLE_PARAM_NAMES, &sd_bus_object_vtable_format};
    return row;
}

sd_bus_vtable end() {
    sd_bus_vtable row{};
    row.type = _SD_BUS_VTABLE_END;
    return row;
}

} // namespace

ExportedObject::ExportedObject(sd_bus* bus, const std::string& path, Interface interface)
    : interface_(std::move(interface)) {
    names_.reserve(interface_.methods().size());
    table_.push_back(start());
    for (const Interface::Method& method : interface_.methods()) {
        names_.push_back(joined(method.argumentNames));
        sd_bus_vtable row{};
        row.type = _SD_BUS_VTABLE_METHOD;
        // Whoever is on the user's bus may call; asking for their credentials would cost a turn.
        row.flags = SD_BUS_VTABLE_UNPRIVILEGED;
        row.x.method = {method.name.c_str(),
                        method.inSignature.c_str(),
                        method.outSignature.c_str(),
                        onCall,
                        (table_.size() - 1) * sizeof(Interface::Method),
                        names_.back().c_str()};
        table_.push_back(row);
    }
    table_.push_back(end());
    checked(::sd_bus_add_object_vtable(bus, &slot_, path.c_str(), interface_.name().c_str(),
                                       table_.data(),
                                       const_cast<Interface::Method*>(interface_.methods().data())),
            "export an interface");
}

ExportedObject::~ExportedObject() {
    ::sd_bus_slot_unref(slot_);
}

} // namespace platform::dbus
