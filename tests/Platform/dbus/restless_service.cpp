// A program that the bus starts and that ends after every moment without a call:
// restless_service FILE. It notes in the file that it started, and the number of every call.

#include "Platform/dbus/MethodError.h"
#include "Platform/dbus/SessionBus.h"

#include <chrono>
#include <cstdint>
#include <fstream>
#include <functional>
#include <stdexcept>
#include <string>

int main(int, char** arguments) {
    using platform::dbus::MethodError;
    const std::string file = arguments[1];
    const auto note = [&file](const std::string& line) {
        std::ofstream(file, std::ios::app) << line + "\n" << std::flush;
    };
    note("start");
    platform::dbus::Interface interface("test.Interface");
    interface.add("Note", {"number"}, {"number"}, std::function([&note](std::int64_t number) {
                      note(std::to_string(number));
                      return number;
                  }));
    interface.add("Refuse", {}, {}, std::function([] {
                      throw MethodError("test.Error.Refused", "Refused by \xFF name.");
                  }));
    interface.add("Fail", {}, {}, std::function([] { throw std::runtime_error("Out of luck."); }));
    platform::dbus::SessionBus bus;
    bus.publish("/test", interface);
    if (bus.own("test.Restless")) {
        bus.serve(std::chrono::milliseconds{1});
    }
}
