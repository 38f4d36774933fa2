#pragma once

#include "Platform/base/Instant.h"
#include "Platform/base/Uuid.h"
#include "Platform/store/RecordFields.h"
#include "QuillmereKit/records/WeekdayMinutes.h"
#include "QuillmereKit/rules/AdjustmentKindConfiguration.h"
#include "QuillmereKit/rules/CustomAdjustmentCategoryConfiguration.h"
#include "QuillmereKit/rules/QuickActionConfiguration.h"

#include <cstdint>
#include <string>
#include <tuple>

namespace quillmere {

/// The fields of a `TimeBankSettings` record, in the order they are stored.
struct TimeBankSettingsValues {
    platform::Uuid id;
    platform::Instant calculationStartDate;
    std::int64_t startingBalanceMinutes = 0;
    std::int64_t mondayMinutes = 480;
    std::int64_t tuesdayMinutes = 480;
    std::int64_t wednesdayMinutes = 480;
    std::int64_t thursdayMinutes = 480;
    std::int64_t fridayMinutes = 480;
    std::int64_t saturdayMinutes = 0;
    std::int64_t sundayMinutes = 0;
    std::int64_t quickActionOneMinutes = 15;
    std::int64_t quickActionTwoMinutes = 30;
    std::int64_t quickActionThreeMinutes = 60;
    std::int64_t quickActionFourMinutes = 120;
    std::string visibleAdjustmentKindsRawValue = AdjustmentKindConfiguration::defaultRawValue();
    std::string customAdjustmentCategoriesRawValue{
        CustomAdjustmentCategoryConfiguration::defaultRawValue};
    bool hasCompletedOnboarding = false;
    platform::Instant modifiedAt;

    /// The seven days and the four presets as stored.
    [[nodiscard]] WeekdayMinutes weekdayMinutes() const;
    [[nodiscard]] QuickActionConfiguration::Presets quickActionMinutes() const;

    friend bool operator==(const TimeBankSettingsValues&, const TimeBankSettingsValues&) = default;
};

} // namespace quillmere

template <>
struct platform::store::RecordFields<quillmere::TimeBankSettingsValues> {
    using V = quillmere::TimeBankSettingsValues;
    static constexpr std::string_view table = "time_bank_settings";
    static constexpr auto fields = std::tuple{
        Field{"id", &V::id},
        Field{"calculation_start_date", &V::calculationStartDate},
        Field{"starting_balance_minutes", &V::startingBalanceMinutes},
        Field{"monday_minutes", &V::mondayMinutes},
        Field{"tuesday_minutes", &V::tuesdayMinutes},
        Field{"wednesday_minutes", &V::wednesdayMinutes},
        Field{"thursday_minutes", &V::thursdayMinutes},
        Field{"friday_minutes", &V::fridayMinutes},
        Field{"saturday_minutes", &V::saturdayMinutes},
        Field{"sunday_minutes", &V::sundayMinutes},
        Field{"quick_action_one_minutes", &V::quickActionOneMinutes},
        Field{"quick_action_two_minutes", &V::quickActionTwoMinutes},
        Field{"quick_action_three_minutes", &V::quickActionThreeMinutes},
        Field{"quick_action_four_minutes", &V::quickActionFourMinutes},
        Field{"visible_adjustment_kinds_raw_value", &V::visibleAdjustmentKindsRawValue},
        Field{"custom_adjustment_categories_raw_value", &V::customAdjustmentCategoriesRawValue},
        Field{"has_completed_onboarding", &V::hasCompletedOnboarding},
        Field{"modified_at", &V::modifiedAt}};
};
