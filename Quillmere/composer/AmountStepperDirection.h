#pragma once

namespace quillmere {

/// Which way a stepper button changes the amount: by −1.0 or +1.0 hours.
enum class AmountStepperDirection {
    decrease,
    increase,
};

} // namespace quillmere
