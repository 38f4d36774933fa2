#pragma once

#include "Platform/base/Clock.h"
#include "Platform/store/Record.h"
#include "QuillmereKit/records/WeekdayMinutes.h"

#include <cstdint>
#include <memory>
#include <span>
#include <tuple>
#include <utility>

namespace quillmere {

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

/// A week of planned minutes that applies from a date on. Setters never touch `modifiedAt`.
class WorkSchedule final : public platform::store::Record<WorkScheduleValues> {
public:
    explicit WorkSchedule(Values values) : Record(std::move(values)) {}

    /// Weekday minutes as by `setWeekdayMinutes`, everything else as given.
    WorkSchedule(platform::Uuid id, platform::Instant effectiveFrom,
                 std::span<const std::int64_t> weekdayMinutes, platform::Instant createdAt,
                 platform::Instant modifiedAt);

    /// A new record: random id, effective, created and modified now, eight hours Monday to Friday.
    [[nodiscard]] static std::unique_ptr<WorkSchedule> create(const platform::Clock& clock);

    [[nodiscard]] const platform::Uuid& id() const { return values().id; }
    [[nodiscard]] platform::Instant effectiveFrom() const { return values().effectiveFrom; }
    [[nodiscard]] platform::Instant createdAt() const { return values().createdAt; }
    [[nodiscard]] platform::Instant modifiedAt() const { return values().modifiedAt; }

    void setEffectiveFrom(platform::Instant instant) { assign<&Values::effectiveFrom>(instant); }
    void setCreatedAt(platform::Instant instant) { assign<&Values::createdAt>(instant); }
    void setModifiedAt(platform::Instant instant) { assign<&Values::modifiedAt>(instant); }

    /// Monday … Sunday as stored.
    [[nodiscard]] WeekdayMinutes weekdayMinutes() const { return values().weekdayMinutes(); }
    /// Monday … Sunday: missing values are 0, each is clamped to 0 … 1440, further ones are
    /// ignored.
    void setWeekdayMinutes(std::span<const std::int64_t> minutes);

    /// Planned minutes of the day containing the instant, 0 … 1440.
    [[nodiscard]] std::int64_t scheduledMinutes(platform::Instant on,
                                                const platform::Calendar& calendar) const;
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
