#pragma once

#include <exception>

namespace quillmere {

/// Why a key was refused; nothing was recorded. `what()` is a sentence for whoever wrote the
/// script.
class AdjustmentKeyError final : public std::exception {
public:
    enum class Reason { empty, tooLong, standsForOtherAmount };

    explicit AdjustmentKeyError(Reason reason) : reason_(reason) {}

    [[nodiscard]] Reason reason() const { return reason_; }
    [[nodiscard]] const char* what() const noexcept override;

private:
    Reason reason_;
};

} // namespace quillmere
