#pragma once

#include <string>

struct sd_bus_message;

namespace platform::dbus {

/// Writes the arguments of a message, one after the other, by the codes of D-Bus's type system.
/// Throws `BusError`.
class MessageWriter {
public:
    /// What holds other values.
    enum class Container : char {
        array = 'a',
        structure = 'r',
        dictionaryEntry = 'e',
        variant = 'v',
    };

    /// The message must outlive the writer.
    explicit MessageWriter(sd_bus_message* message) : message_(message) {}

    /// A value of a fixed size; `value` points to the C++ type of that code.
    void fixed(char code, const void* value);
    /// Texts travel as UTF-8: what is none is replaced by U+FFFD.
    void string(const std::string& text);

    /// Values written until `close` go into the container; `signature` is that of its contents.
    void open(Container container, const std::string& signature);
    void close();

private:
    sd_bus_message* message_;
};

} // namespace platform::dbus
