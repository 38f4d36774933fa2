#pragma once

#include "Platform/base/Clock.h"
#include "QuillmereKit/records/WeekRecord.h"
#include "QuillmereKit/records/WorkScheduleValues.h"

#include <cstdint>
#include <memory>
#include <span>
#include <utility>

namespace quillmere {

/// A week of planned minutes that applies from a date on. Setters never touch `modifiedAt`.
class WorkSchedule final : public WeekRecord<WorkScheduleValues> {
public:
    explicit WorkSchedule(const Values& values) : WeekRecord(values) {}

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
};

} // namespace quillmere
