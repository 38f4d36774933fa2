#pragma once

#include "Quillmere/composer/AmountStepperDirection.h"

#include <array>
#include <optional>
#include <string>
#include <string_view>

namespace quillmere {

/// The amount a user types, in hours. Texts are UTF-8.
namespace AmountText {

/// The amounts offered for one press, in hours.
inline constexpr std::array presetHours{1, 2, 4, 8};

/// The number of hours: white space around it and either decimal separator are accepted, and what
/// C's strtod reads in the "C" locale, exponents and hexadecimal included. Nothing when the text is
/// not one number from end to end, or the number is not finite.
[[nodiscard]] std::optional<double> parsedHours(std::string_view hoursText);

/// The amount in whole minutes, 1 … 1440, halves rounded away from zero. Nothing when the text is
/// no amount or outside of what one change may be.
[[nodiscard]] std::optional<int> minutes(std::string_view hoursText);

/// What is wrong with the text, for the user; nothing for a valid amount and for a blank text.
[[nodiscard]] std::optional<std::string_view> validationMessage(std::string_view hoursText);

/// The text after one press of a stepper button: an hour more or less, snapped to a quarter, at
/// most 24. An hour below a quarter gives 0. A text that is no number counts as 0.
[[nodiscard]] std::string stepped(std::string_view hoursText, AmountStepperDirection direction);

} // namespace AmountText

} // namespace quillmere
