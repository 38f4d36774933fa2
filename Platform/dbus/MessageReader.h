#pragma once

#include <string>

struct sd_bus_message;

namespace platform::dbus {

/// Reads the arguments of a message, one after the other, by the codes of D-Bus's type system
/// (D-Bus 0.41, "Type System"). Throws `BusError` when an argument is of another type.
class MessageReader {
public:
    /// The message must outlive the reader.
    explicit MessageReader(sd_bus_message* message) : message_(message) {}

    /// A value of a fixed size; `value` points to the C++ type of that code.
    void fixed(char code, void* value);
    [[nodiscard]] std::string string();

    void enterArray(const std::string& elementSignature);
    /// Whether the array entered last has another element.
    [[nodiscard]] bool hasMore() const;
    void exitArray();

private:
    sd_bus_message* message_;
};

} // namespace platform::dbus
