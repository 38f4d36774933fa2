#pragma once

#include <stdexcept>
#include <string>
#include <utility>

namespace platform::dbus {

/// Thrown by a method to answer its caller with an error: a name such as
/// "org.freedesktop.DBus.Error.InvalidArgs", and `what()` as the words for it.
class MethodError final : public std::runtime_error {
public:
    MethodError(std::string name, const std::string& words)
        : std::runtime_error(words), name_(std::move(name)) {}

    [[nodiscard]] const std::string& name() const { return name_; }

private:
    std::string name_;
};

} // namespace platform::dbus
