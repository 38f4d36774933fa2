#pragma once

#include <exception>
#include <string>

namespace quillmere {

/// A failure of the action in the words of those it is told to.
struct ActionFailure {
    std::string errorName; ///< of the D-Bus error: "dev.vantor.quillmere.Error.ReadOnly"
    std::string sentence;  ///< for a person
    std::string details;   ///< for whoever looks into it; may be empty

    [[nodiscard]] static ActionFailure of(const std::exception& error);
};

} // namespace quillmere
