#include "QuillmereKit/actions/AdjustmentKeyError.h"

namespace quillmere {

const char* AdjustmentKeyError::what() const noexcept {
    switch (reason_) {
    case Reason::empty:
        return "The key is empty.";
    case Reason::tooLong:
        return "The key is longer than 200 bytes.";
    case Reason::standsForOtherAmount:
        return "The key was used before, with another number of minutes.";
    }
    return "";
}

} // namespace quillmere
