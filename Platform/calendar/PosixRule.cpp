#include "Platform/calendar/PosixRule.h"

#include "Platform/calendar/ZoneRules.h"

#include <algorithm>
#include <charconv>
#include <cstdint>
#include <string>
#include <utility>

namespace platform {
namespace {

constexpr std::string_view datesWithoutSaying = ",M3.2.0,M11.1.0";

/// One of the two times that a zone keeps in turn.
struct Time {
    std::string_view abbreviation;
    int secondsWest = 0;
};

/// Takes three or more letters, or anything between angle brackets; empty when there is neither.
std::string_view takeAbbreviation(std::string_view& text) {
    const bool quoted = text.starts_with('<');
    const auto isLetter = [](char c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z'); };
    const auto end = quoted
                         ? text.find('>')
                         : static_cast<std::size_t>(
                               std::find_if_not(text.begin(), text.end(), isLetter) - text.begin());
    if (end == std::string_view::npos || end < 3)
        return {};
    const auto found = text.substr(quoted ? 1 : 0, quoted ? end - 1 : end);
    text.remove_prefix(quoted ? end + 1 : end);
    return found;
}

std::optional<int> takeNumber(std::string_view& text, int greatest) {
    int value = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (error != std::errc{} || value < 0 || value > greatest)
        return std::nullopt;
    text.remove_prefix(static_cast<std::size_t>(end - text.data()));
    return value;
}

/// Takes "[+-]hh[:mm[:ss]]" and answers it in seconds.
std::optional<int> takeOffset(std::string_view& text) {
    const bool negative = text.starts_with('-');
    if (negative || text.starts_with('+'))
        text.remove_prefix(1);
    int seconds = 0;
    for (const auto& [unit, greatest] : {std::pair{3600, 24}, {60, 59}, {1, 59}}) {
        if (unit != 3600) {
            if (!text.starts_with(':'))
                break;
            text.remove_prefix(1);
        }
        const auto value = takeNumber(text, greatest);
        if (!value)
            return std::nullopt;
        seconds += *value * unit;
    }
    return negative ? -seconds : seconds;
}

/// Takes ",Mm.w.d", ",Jn" or ",n", each perhaps with "/time", and answers about which day of the
/// year that is.
std::optional<int> takeDate(std::string_view& text) {
    if (!text.starts_with(','))
        return std::nullopt;
    text.remove_prefix(1);
    const bool isMonth = text.starts_with('M');
    if (isMonth || text.starts_with('J'))
        text.remove_prefix(1);
    const auto number = takeNumber(text, isMonth ? 12 : 365);
    text.remove_prefix(std::min(text.find(','), text.size()));
    return number ? std::optional(isMonth ? *number * 31 : *number) : std::nullopt;
}

void appendNumber(std::string& bytes, std::int64_t value, int size) {
    for (int shift = 8 * (size - 1); shift >= 0; shift -= 8)
        bytes += static_cast<char>(value >> shift & 0xFF);
}

void appendHeader(std::string& bytes, int changes, int types, std::size_t letters) {
    bytes.append("TZif2").append(15 + 3 * 4, '\0'); // no leap seconds, no indicators
    appendNumber(bytes, changes, 4);
    appendNumber(bytes, types, 4);
    appendNumber(bytes, static_cast<std::int64_t>(letters), 4);
}

/// A zone file (RFC 8536, version 2) that leaves everything to the rule behind it. cctz goes on
/// from the last two changes of a file, so there are two in 1900, the later one to the time kept at
/// the end of a year.
std::string zoneFile(const Time& standard, const Time& summer, bool isSummerAtNewYear,
                     const std::string& rule) {
    constexpr std::int64_t july1900 = -2193350400;
    constexpr std::int64_t endOf1900 = -2177539200;
    std::string letters(standard.abbreviation);
    letters.append(1, '\0').append(summer.abbreviation).append(1, '\0');
    std::string bytes;
    appendHeader(bytes, 0, 0, 0);
    appendHeader(bytes, 2, 2, letters.size());
    appendNumber(bytes, july1900, 8);
    appendNumber(bytes, endOf1900, 8);
    appendNumber(bytes, isSummerAtNewYear ? 0 : 1, 1);
    appendNumber(bytes, isSummerAtNewYear ? 1 : 0, 1);
    appendNumber(bytes, -standard.secondsWest, 4);
    appendNumber(bytes, 0, 2);
    appendNumber(bytes, -summer.secondsWest, 4);
    appendNumber(bytes, 1, 1);
    appendNumber(bytes, static_cast<std::int64_t>(standard.abbreviation.size() + 1), 1);
    return bytes + letters + '\n' + rule + '\n';
}

} // namespace

std::optional<cctz::time_zone> zoneRulesOfPosixRule(std::string_view rule) {
    auto rest = rule;
    Time standard{takeAbbreviation(rest)};
    const auto secondsWest = takeOffset(rest);
    if (standard.abbreviation.empty() || !secondsWest)
        return std::nullopt;
    standard.secondsWest = *secondsWest;
    if (rest.empty())
        return cctz::fixed_time_zone(std::chrono::seconds(-standard.secondsWest));
    Time summer{takeAbbreviation(rest), standard.secondsWest - 3600};
    if (!rest.empty() && rest.front() != ',')
        summer.secondsWest = takeOffset(rest).value_or(summer.secondsWest);
    const auto whole = std::string(rule).append(rest.empty() ? datesWithoutSaying : "");
    auto dates = rest.empty() ? datesWithoutSaying : rest;
    const auto start = takeDate(dates);
    const auto end = takeDate(dates);
    if (summer.abbreviation.empty() || !start || !end)
        return std::nullopt;
    return zoneRulesFromData(zoneFile(standard, summer, *start > *end, whole));
}

} // namespace platform
