#pragma once

#include "Platform/base/Instant.h"
#include "Platform/base/Uuid.h"
#include "Platform/store/RecordFields.h"
#include "QuillmereKit/records/WeekdayMinutes.h"

#include <cstdint>
#include <tuple>

namespace quillmere {

/// The fields of a `WorkSchedule`, in the order they are stored.
struct WorkScheduleValues {
    platform::Uuid id;
    platform::Instant effectiveFrom;
    std::int64_t mondayMinutes = 480;
    std::int64_t tuesdayMinutes = 480;
    std::int64_t wednesdayMinutes = 480;
    std::int64_t thursdayMinutes = 480;
    std::int64_t fridayMinutes = 480;
    std::int64_t saturdayMinutes = 0;
    std::int64_t sundayMinutes = 0;
    platform::Instant createdAt;
    platform::Instant modifiedAt;

    /// The seven days as stored.
    [[nodiscard]] WeekdayMinutes weekdayMinutes() const;

    friend bool operator==(const WorkScheduleValues&, const WorkScheduleValues&) = default;
};

} // namespace quillmere

template <>
struct platform::store::RecordFields<quillmere::WorkScheduleValues> {
    using V = quillmere::WorkScheduleValues;
    static constexpr std::string_view table = "work_schedule";
    static constexpr auto fields = std::tuple{Field{"id", &V::id},
                                              Field{"effective_from", &V::effectiveFrom},
                                              Field{"monday_minutes", &V::mondayMinutes},
                                              Field{"tuesday_minutes", &V::tuesdayMinutes},
                                              Field{"wednesday_minutes", &V::wednesdayMinutes},
                                              Field{"thursday_minutes", &V::thursdayMinutes},
                                              Field{"friday_minutes", &V::fridayMinutes},
                                              Field{"saturday_minutes", &V::saturdayMinutes},
                                              Field{"sunday_minutes", &V::sundayMinutes},
                                              Field{"created_at", &V::createdAt},
                                              Field{"modified_at", &V::modifiedAt}};
};
