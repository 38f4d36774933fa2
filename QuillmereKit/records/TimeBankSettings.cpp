#include "QuillmereKit/records/TimeBankSettings.h"

namespace quillmere {

WeekdayMinutes TimeBankSettingsValues::weekdayMinutes() const {
    return {mondayMinutes, tuesdayMinutes,  wednesdayMinutes, thursdayMinutes,
            fridayMinutes, saturdayMinutes, sundayMinutes};
}

QuickActionConfiguration::Presets TimeBankSettingsValues::quickActionMinutes() const {
    return {quickActionOneMinutes, quickActionTwoMinutes, quickActionThreeMinutes,
            quickActionFourMinutes};
}

TimeBankSettings::TimeBankSettings(platform::Uuid id, platform::Instant calculationStartDate,
                                   std::int64_t startingBalanceMinutes,
                                   std::span<const std::int64_t> weekdayMinutes,
                                   std::span<const std::int64_t> quickActionMinutes,
                                   std::string_view visibleAdjustmentKindsRawValue,
                                   std::string_view customAdjustmentCategoriesRawValue,
                                   bool hasCompletedOnboarding, platform::Instant modifiedAt)
    : WeekRecord(
          {.id = id,
           .calculationStartDate = calculationStartDate,
           .startingBalanceMinutes = startingBalanceMinutes,
           .visibleAdjustmentKindsRawValue = AdjustmentKindConfiguration::rawValue(
               AdjustmentKindConfiguration::kinds(visibleAdjustmentKindsRawValue)),
           .customAdjustmentCategoriesRawValue = CustomAdjustmentCategoryConfiguration::rawValue(
               CustomAdjustmentCategoryConfiguration::categories(
                   customAdjustmentCategoriesRawValue)),
           .hasCompletedOnboarding = hasCompletedOnboarding,
           .modifiedAt = modifiedAt}) {
    setWeekdayMinutes(WeekdayPlan::clamped(weekdayMinutes, WeekdayPlan::defaultWeek));
    setQuickActionMinutes(quickActionMinutes);
}

std::unique_ptr<TimeBankSettings> TimeBankSettings::create(const platform::Clock& clock) {
    return create(clock.now());
}

std::unique_ptr<TimeBankSettings> TimeBankSettings::create(platform::Instant now) {
    return std::make_unique<TimeBankSettings>(
        platform::Uuid::random(), now, 0, WeekdayPlan::defaultWeek,
        QuickActionConfiguration::defaultMinutes, AdjustmentKindConfiguration::defaultRawValue(),
        CustomAdjustmentCategoryConfiguration::defaultRawValue, false, now);
}

void TimeBankSettings::setQuickActionMinutes(std::span<const std::int64_t> minutes) {
    const QuickActionConfiguration::Presets presets = QuickActionConfiguration::normalized(minutes);
    assign<&Values::quickActionOneMinutes>(presets[0]);
    assign<&Values::quickActionTwoMinutes>(presets[1]);
    assign<&Values::quickActionThreeMinutes>(presets[2]);
    assign<&Values::quickActionFourMinutes>(presets[3]);
}

} // namespace quillmere
