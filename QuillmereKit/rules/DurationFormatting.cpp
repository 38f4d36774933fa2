#include "QuillmereKit/rules/DurationFormatting.h"

#include <cmath>
#include <cstdint>
#include <optional>

namespace quillmere::DurationFormatting {

namespace {

constexpr double maximumTotalMinutes = 0x1p62;
constexpr const char* minusSign = "\u2212";
constexpr const char* emDash = "\u2014";

/// The amount in whole minutes; nothing where no text can show it.
std::optional<std::int64_t> totalMinutes(double seconds) {
    const double minutes = std::round(std::abs(seconds) / 60);
    if (!std::isfinite(seconds) || minutes > maximumTotalMinutes) {
        return std::nullopt;
    }
    return static_cast<std::int64_t>(minutes);
}

} // namespace

std::string clock(double seconds, bool includeSign) {
    std::string text = includeSign ? (seconds < 0 ? minusSign : "+") : "";
    const auto total = totalMinutes(seconds);
    if (!total) {
        return text + emDash;
    }
    text += std::to_string(*total / 60) + ':';
    text += *total % 60 < 10 ? "0" : "";
    return text + std::to_string(*total % 60);
}

std::string accessible(double seconds) {
    const auto total = totalMinutes(seconds);
    if (!total) {
        return "duration unavailable";
    }
    return std::string(seconds < 0 ? "minus " : "plus ") + std::to_string(*total / 60) +
           " hours, " + std::to_string(*total % 60) + " minutes";
}

} // namespace quillmere::DurationFormatting
