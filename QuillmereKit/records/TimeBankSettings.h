#pragma once

#include "Platform/base/Clock.h"
#include "QuillmereKit/records/TimeBankSettingsValues.h"
#include "QuillmereKit/records/WeekRecord.h"

#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <utility>

namespace quillmere {

/// The settings record; a repaired store holds exactly one. Setters never touch `modifiedAt`;
/// whoever writes keeps it true.
class TimeBankSettings final : public WeekRecord<TimeBankSettingsValues> {
public:
    explicit TimeBankSettings(Values values) : WeekRecord(std::move(values)) {}

    /// Normalises as it stores: weekdays that are missing get the default working week and all are
    /// clamped to 0 … 1440, quick actions are normalised, both category texts are written anew in
    /// canonical form. Everything else as given.
    TimeBankSettings(platform::Uuid id, platform::Instant calculationStartDate,
                     std::int64_t startingBalanceMinutes,
                     std::span<const std::int64_t> weekdayMinutes,
                     std::span<const std::int64_t> quickActionMinutes,
                     std::string_view visibleAdjustmentKindsRawValue,
                     std::string_view customAdjustmentCategoriesRawValue,
                     bool hasCompletedOnboarding, platform::Instant modifiedAt);

    /// A new record with the defaults: random id, calculation from now on, modified now.
    [[nodiscard]] static std::unique_ptr<TimeBankSettings> create(const platform::Clock& clock);
    /// The same with a given time for both.
    [[nodiscard]] static std::unique_ptr<TimeBankSettings> create(platform::Instant now);

    [[nodiscard]] const platform::Uuid& id() const { return values().id; }
    [[nodiscard]] platform::Instant calculationStartDate() const {
        return values().calculationStartDate;
    }
    [[nodiscard]] std::int64_t startingBalanceMinutes() const {
        return values().startingBalanceMinutes;
    }
    [[nodiscard]] const std::string& visibleAdjustmentKindsRawValue() const {
        return values().visibleAdjustmentKindsRawValue;
    }
    [[nodiscard]] const std::string& customAdjustmentCategoriesRawValue() const {
        return values().customAdjustmentCategoriesRawValue;
    }
    [[nodiscard]] bool hasCompletedOnboarding() const { return values().hasCompletedOnboarding; }
    [[nodiscard]] platform::Instant modifiedAt() const { return values().modifiedAt; }

    void setCalculationStartDate(platform::Instant date) {
        assign<&Values::calculationStartDate>(date);
    }
    void setStartingBalanceMinutes(std::int64_t minutes) {
        assign<&Values::startingBalanceMinutes>(minutes);
    }
    void setVisibleAdjustmentKindsRawValue(std::string rawValue) {
        assign<&Values::visibleAdjustmentKindsRawValue>(std::move(rawValue));
    }
    void setCustomAdjustmentCategoriesRawValue(std::string rawValue) {
        assign<&Values::customAdjustmentCategoriesRawValue>(std::move(rawValue));
    }
    void setHasCompletedOnboarding(bool completed) {
        assign<&Values::hasCompletedOnboarding>(completed);
    }
    void setModifiedAt(platform::Instant instant) { assign<&Values::modifiedAt>(instant); }

    /// The four presets as stored.
    [[nodiscard]] QuickActionConfiguration::Presets quickActionMinutes() const {
        return values().quickActionMinutes();
    }
    /// The four presets, normalised.
    void setQuickActionMinutes(std::span<const std::int64_t> minutes);
};

} // namespace quillmere
