#pragma once

#include <exception>

namespace quillmere {

/// Why a change of the time bank was refused. `what()` is the sentence users are shown.
class TimeBankTransactionError final : public std::exception {
public:
    enum class Reason { zeroDuration, durationTooLarge };

    explicit TimeBankTransactionError(Reason reason) : reason_(reason) {}

    [[nodiscard]] Reason reason() const { return reason_; }
    [[nodiscard]] const char* what() const noexcept override;

    friend bool operator==(const TimeBankTransactionError& a, const TimeBankTransactionError& b) {
        return a.reason_ == b.reason_;
    }

private:
    Reason reason_;
};

} // namespace quillmere
