#include "QuillmereKit/transactions/TimeBankTransactionError.h"

namespace quillmere {

const char* TimeBankTransactionError::what() const noexcept {
    switch (reason_) {
    case Reason::zeroDuration:
        return "Choose an amount of time first.";
    case Reason::durationTooLarge:
        return "A single transaction can't exceed 24 hours.";
    }
    return "";
}

} // namespace quillmere
