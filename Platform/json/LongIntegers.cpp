#include "Platform/json/LongIntegers.h"

#include <algorithm>

namespace platform::json {

namespace {

/// 2^63 has 19 digits.
constexpr std::ptrdiff_t longDigits = 19;

using Place = const char*;

constexpr bool isDigit(char character) {
    return character >= '0' && character <= '9';
}

constexpr bool isOfNumber(char character) {
    return isDigit(character) || character == '-' || character == '+' || character == '.' ||
           character == 'e' || character == 'E';
}

constexpr bool beginsNumberOrString(char character) {
    return isDigit(character) || character == '-' || character == '"';
}

/// The place behind the string whose opening quote is at `quote`.
Place skipString(Place quote, Place end) {
    for (Place place = quote + 1; place < end; ++place) {
        if (*place == '"') {
            return place + 1;
        }
        if (*place == '\\') {
            ++place;
        }
    }
    return end;
}

bool isLongInteger(Place begin, Place end) {
    if (*begin == '-') {
        ++begin;
    }
    return end - begin >= longDigits && std::all_of(begin, end, isDigit);
}

} // namespace

std::string withLongIntegersAsDoubles(std::string_view text) {
    const Place end = text.data() + text.size();
    std::string result;
    Place copied = text.data();
    Place place = std::find_if(copied, end, beginsNumberOrString);
    while (place != end) {
        const Place start = place;
        if (*start == '"') {
            place = skipString(start, end);
        } else {
            place = std::find_if_not(start, end, isOfNumber);
            if (isLongInteger(start, place)) {
                result.append(copied, place).append(".0");
                copied = place;
            }
        }
        place = std::find_if(place, end, beginsNumberOrString);
    }
    return result.empty() ? result : result.append(copied, end);
}

} // namespace platform::json
