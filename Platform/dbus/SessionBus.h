#pragma once

#include "Platform/dbus/BusError.h"
#include "Platform/dbus/Interface.h"

#include <chrono>
#include <functional>
#include <memory>
#include <string>
#include <vector>

struct sd_bus;
struct sd_bus_message;

namespace platform::dbus {

class ExportedObject;

/// One interface of one object of one program on the bus.
struct Destination {
    std::string service;
    std::string path;
    std::string interface;
};

/// A connection to the user's session bus. Calls are handled one after the other on the thread that
/// serves, which is the only one that may use the object. Functions throw `BusError`.
class SessionBus {
public:
    SessionBus();
    /// What was sent goes out first.
    ~SessionBus();
    SessionBus(const SessionBus&) = delete;
    SessionBus& operator=(const SessionBus&) = delete;

    /// Offers an interface at a path from now on. It can be introspected.
    void publish(const std::string& path, Interface interface);

    /// Takes a well-known name, under which calls arrive from now on. False when another program
    /// has it.
    [[nodiscard]] bool own(const std::string& name);

    /// Emits a signal without arguments.
    void emitSignal(const std::string& path, const std::string& interface,
                    const std::string& signal);

    /// Calls a method without waiting for its answer, starting the program where need be.
    template <class... Arguments>
    void send(const Destination& destination, const std::string& method,
              const Arguments&... arguments) {
        sendWritten(destination, method, [&](MessageWriter& writer) {
            (Wire<Arguments>::write(writer, arguments), ...);
        });
    }

    /// Handles calls until none has come for `idle`; then gives the names back and handles what was
    /// on its way. A call that comes later starts the next program, so none is lost; none is
    /// handled twice. Also returns when the bus goes away. `onQuiet` is called whenever all calls
    /// so far have been answered.
    void serve(
        std::chrono::milliseconds idle, const std::function<void()>& onQuiet = [] {});

private:
    struct Close {
        void operator()(sd_bus* bus) const;
    };

    void sendWritten(const Destination& destination, const std::string& method,
                     const std::function<void(MessageWriter&)>& writeArguments);
    void handleUntilQuiet(std::chrono::milliseconds quiet, const std::function<void()>& onQuiet);

    std::unique_ptr<sd_bus, Close> bus_;
    std::vector<std::unique_ptr<ExportedObject>> objects_;
    std::vector<std::string> names_;
};

} // namespace platform::dbus
