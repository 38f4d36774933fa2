#pragma once

#include <stdexcept>

namespace platform::json {

/// A text that is not acceptable JSON, or a value that JSON cannot hold. `what()` says why, for a
/// log; it quotes nothing of the text.
class JsonError final : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

} // namespace platform::json
