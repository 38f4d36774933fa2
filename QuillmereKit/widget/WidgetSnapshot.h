#pragma once

#include "Platform/base/Clock.h"
#include "Platform/calendar/Calendar.h"
#include "QuillmereKit/rules/QuickActionConfiguration.h"

#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace quillmere {

/// The summary of the time bank that is published for widgets. Two of its names are older than
/// their meaning: what counts today is time added and time taken.
struct WidgetSnapshot {
    double balanceSeconds = 0;
    double todayWorkedSeconds = 0;   ///< added today
    double todayExpectedSeconds = 0; ///< taken today, as a positive number
    std::optional<platform::Instant> runningSince;
    QuickActionConfiguration::Presets quickActionMinutes = QuickActionConfiguration::defaultMinutes;
    platform::Instant updatedAt; ///< the moment the snapshot describes
    bool isConfigured = false;   ///< whether setup has been completed

    WidgetSnapshot() = default;
    /// Normalises the quick actions; everything else as given.
    WidgetSnapshot(double balanceSeconds, double todayWorkedSeconds, double todayExpectedSeconds,
                   std::optional<platform::Instant> runningSince,
                   std::span<const std::int64_t> quickActionMinutes, platform::Instant updatedAt,
                   bool isConfigured);

    /// Sample content for previews. Made on first use, which gives it its `updatedAt`.
    [[nodiscard]] static const WidgetSnapshot& placeholder(const platform::Clock& clock);
    /// What readers get where nothing valid is stored. Made on first use likewise.
    [[nodiscard]] static const WidgetSnapshot& empty(const platform::Clock& clock);

    /// A copy as it may be shown at an instant: today's two figures are 0 when the snapshot
    /// describes another day.
    [[nodiscard]] WidgetSnapshot displayed(platform::Instant at,
                                           const platform::Calendar& calendar) const;

    /// One JSON object; times are seconds since 2001. Nothing when a number is not finite.
    [[nodiscard]] std::optional<std::string> encodedJSON() const;
    /// Nothing when the text is not such an object. Older snapshots without quick actions or the
    /// configured flag read with the default presets, as configured.
    [[nodiscard]] static std::optional<WidgetSnapshot> decodeJSON(std::string_view json);

    friend bool operator==(const WidgetSnapshot&, const WidgetSnapshot&) = default;
};

} // namespace quillmere
