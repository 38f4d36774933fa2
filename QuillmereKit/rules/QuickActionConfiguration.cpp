#include "QuillmereKit/rules/QuickActionConfiguration.h"

#include <algorithm>
#include <cstdlib>

namespace quillmere::QuickActionConfiguration {

namespace {

/// The first of equally near amounts, which is the smaller.
std::int64_t nearestSupported(std::int64_t minutes) {
    const std::int64_t clamped =
        std::clamp(minutes, supportedMinutes.front(), supportedMinutes.back());
    return *std::ranges::min_element(supportedMinutes, {}, [clamped](std::int64_t supported) {
        return std::abs(supported - clamped);
    });
}

} // namespace

Presets normalized(std::span<const std::int64_t> minutes) {
    Presets presets = defaultMinutes;
    std::ranges::transform(minutes.first(std::min(minutes.size(), presets.size())), presets.begin(),
                           nearestSupported);
    return presets;
}

std::string displayName(std::int64_t minutes) {
    const std::string hours = std::to_string(minutes / 60);
    if (minutes > -60 && minutes < 60) {
        return std::to_string(minutes) + " min";
    }
    if (minutes % 60 == 0) {
        return hours + (minutes == 60 ? " hr" : " hrs");
    }
    return hours + " hr " + std::to_string(minutes % 60) + " min";
}

} // namespace quillmere::QuickActionConfiguration
