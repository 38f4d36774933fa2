#pragma once

#include <unicode/utypes.h>

#include <stdexcept>
#include <string>

namespace platform {

/// Throws `std::runtime_error` when an ICU call failed, as it does without its data.
inline void requireIcu(UErrorCode status) {
    if (U_FAILURE(status))
        throw std::runtime_error(std::string("ICU failed: ") + u_errorName(status));
}

} // namespace platform
