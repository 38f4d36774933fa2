#pragma once

#include "Platform/store/Record.h"
#include "QuillmereKit/records/WeekdayMinutes.h"

#include <cstdint>
#include <span>

namespace quillmere {

/// Base of the records that plan a week, in the fields `mondayMinutes` … `sundayMinutes`.
template <class V>
class WeekRecord : public platform::store::Record<V> {
public:
    /// Monday … Sunday as stored.
    [[nodiscard]] WeekdayMinutes weekdayMinutes() const { return this->values().weekdayMinutes(); }

    /// Monday … Sunday: missing values are 0, each is clamped to 0 … 1440, further ones are
    /// ignored.
    void setWeekdayMinutes(std::span<const std::int64_t> minutes) {
        const WeekdayMinutes week = WeekdayPlan::clamped(minutes);
        this->template assign<&V::mondayMinutes>(week[0]);
        this->template assign<&V::tuesdayMinutes>(week[1]);
        this->template assign<&V::wednesdayMinutes>(week[2]);
        this->template assign<&V::thursdayMinutes>(week[3]);
        this->template assign<&V::fridayMinutes>(week[4]);
        this->template assign<&V::saturdayMinutes>(week[5]);
        this->template assign<&V::sundayMinutes>(week[6]);
    }

    /// Planned minutes of the day containing the instant, 0 … 1440.
    [[nodiscard]] std::int64_t scheduledMinutes(platform::Instant on,
                                                const platform::Calendar& calendar) const {
        return WeekdayPlan::scheduledMinutes(weekdayMinutes(), on, calendar);
    }

protected:
    using platform::store::Record<V>::Record;
};

} // namespace quillmere
