#include "Platform/dbus/SessionBus.h"

#include "Platform/dbus/ExportedObject.h"

#include <systemd/sd-bus.h>

#include <algorithm>
#include <cerrno>
#include <utility>

namespace platform::dbus {

namespace {

using std::chrono::microseconds;
using std::chrono::milliseconds;
using std::chrono::steady_clock;

/// Some callers address a program by its connection once they have found it; they learn that its
/// name is gone a moment later.
constexpr milliseconds partingTime{250};

sd_bus* connect() {
    sd_bus* bus = nullptr;
    const int result = ::sd_bus_open_user(&bus);
    if (result < 0) {
        throw BusError(BusFault::unreachable, BusError::ofResult(result, "connect").what());
    }
    return bus;
}

std::uint64_t microsecondsUntil(steady_clock::time_point moment) {
    const auto left = std::chrono::duration_cast<microseconds>(moment - steady_clock::now());
    return static_cast<std::uint64_t>(std::max(left, microseconds::zero()).count());
}

} // namespace

void SessionBus::Close::operator()(sd_bus* bus) const {
    ::sd_bus_flush_close_unref(bus);
}

SessionBus::SessionBus() : bus_(connect()) {
}

SessionBus::~SessionBus() = default;

void SessionBus::publish(const std::string& path, Interface interface) {
    objects_.push_back(std::make_unique<ExportedObject>(bus_.get(), path, std::move(interface)));
}

bool SessionBus::own(const std::string& name) {
    const int result = ::sd_bus_request_name(bus_.get(), name.c_str(), 0);
    if (result == -EEXIST) {
        return false;
    }
    checked(result, "take a name");
    names_.push_back(name);
    return true;
}

void SessionBus::emitSignal(const std::string& path, const std::string& interface,
                            const std::string& signal) {
    sd_bus_message* made = nullptr;
    checked(::sd_bus_message_new_signal(bus_.get(), &made, path.c_str(), interface.c_str(),
                                        signal.c_str()),
            "emit a signal");
    const std::unique_ptr<sd_bus_message, decltype(&::sd_bus_message_unref)> message(
        made, &::sd_bus_message_unref);
    checked(::sd_bus_send(bus_.get(), made, nullptr), "emit a signal");
}

void SessionBus::sendWritten(const Destination& destination, const std::string& method,
                             const std::function<void(MessageWriter&)>& writeArguments) {
    sd_bus_message* made = nullptr;
    checked(::sd_bus_message_new_method_call(bus_.get(), &made, destination.service.c_str(),
                                             destination.path.c_str(),
                                             destination.interface.c_str(), method.c_str()),
            "call a method");
    const std::unique_ptr<sd_bus_message, decltype(&::sd_bus_message_unref)> message(
        made, &::sd_bus_message_unref);
    checked(::sd_bus_message_set_expect_reply(made, 0), "call a method");
    MessageWriter writer(made);
    writeArguments(writer);
    checked(::sd_bus_send(bus_.get(), made, nullptr), "call a method");
}

void SessionBus::serve(milliseconds idle, const std::function<void()>& onQuiet) {
    try {
        handleUntilQuiet(idle, onQuiet);
        // Until the bus has answered, calls still arrive here and are kept for later; from then on
        // they go to the next owner.
        for (const std::string& name : std::exchange(names_, {})) {
            checked(::sd_bus_release_name(bus_.get(), name.c_str()), "give a name back");
        }
        handleUntilQuiet(partingTime, onQuiet);
    } catch (const BusError& error) {
        if (error.fault() != BusFault::disconnected) {
            throw;
        }
    }
}

void SessionBus::handleUntilQuiet(milliseconds quiet, const std::function<void()>& onQuiet) {
    auto end = steady_clock::now() + quiet;
    for (;;) {
        if (checked(::sd_bus_process(bus_.get(), nullptr), "handle a call") > 0) {
            end = steady_clock::now() + quiet;
            continue;
        }
        onQuiet();
        const std::uint64_t left = microsecondsUntil(end);
        if (left == 0) {
            return;
        }
        const int result = ::sd_bus_wait(bus_.get(), left);
        if (result != -EINTR) {
            checked(result, "wait for a call");
        }
    }
}

} // namespace platform::dbus
