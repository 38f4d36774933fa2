#include "Quillmere/composer/AmountText.h"

#include "Platform/text/WhiteSpace.h"

#include <locale.h>

#include <algorithm>
#include <charconv>
#include <clocale>
#include <cmath>
#include <cstdlib>

namespace quillmere::AmountText {

namespace {

constexpr double maximumHours = 24;
constexpr double maximumMinutes = maximumHours * 60;

locale_t cLocale() {
    static const locale_t locale = newlocale(LC_ALL_MASK, "C", nullptr);
    return locale;
}

// Infinite and not-a-number results included.
std::optional<double> number(std::string_view hoursText) {
    std::string text(platform::trimmed(hoursText));
    std::ranges::replace(text, ',', '.');
    char* end = nullptr;
    const double value = strtod_l(text.c_str(), &end, cLocale());
    if (text.empty() || end != text.data() + text.size()) {
        return std::nullopt;
    }
    return value;
}

std::string decimal(double hours) {
    std::array<char, 32> buffer{};
    const auto [end, error] = std::to_chars(buffer.data(), buffer.data() + buffer.size(), hours,
                                            std::chars_format::fixed);
    return {buffer.data(), end};
}

} // namespace

std::optional<double> parsedHours(std::string_view hoursText) {
    const std::optional<double> hours = number(hoursText);
    return hours && std::isfinite(*hours) ? hours : std::nullopt;
}

std::optional<int> minutes(std::string_view hoursText) {
    const std::optional<double> hours = parsedHours(hoursText);
    if (!hours || *hours <= 0 || *hours > maximumHours) {
        return std::nullopt;
    }
    const double minutes = std::round(*hours * 60);
    if (minutes < 1 || minutes > maximumMinutes) {
        return std::nullopt;
    }
    return static_cast<int>(minutes);
}

std::optional<std::string_view> validationMessage(std::string_view hoursText) {
    if (platform::trimmed(hoursText).empty()) {
        return std::nullopt;
    }
    const std::optional<double> hours = parsedHours(hoursText);
    if (!hours) {
        return "Enter a valid number of hours.";
    }
    if (*hours <= 0) {
        return "Enter an amount greater than zero.";
    }
    if (*hours > maximumHours) {
        return "A single adjustment cannot exceed 24 hours.";
    }
    if (!minutes(hoursText)) {
        return "Enter at least one minute.";
    }
    return std::nullopt;
}

std::string stepped(std::string_view hoursText, AmountStepperDirection direction) {
    const double delta = direction == AmountStepperDirection::decrease ? -1.0 : 1.0;
    const double quarters = (number(hoursText).value_or(0) + delta) * 4;
    // The lower bound is one of quarters of an hour, taken before rounding: it lets the result
    // reach 0.
    const double atLeast = quarters > 0.25 ? quarters : 0.25;
    return decimal(std::min(std::round(atLeast) * 0.25, maximumHours));
}

} // namespace quillmere::AmountText
