#pragma once

#include "Platform/calendar/Calendar.h"

namespace quillmere {

/// The user's calendar as the system has it at each question, so that a changed zone counts from
/// the next run on. The region is read once: it is the environment's.
class SystemCalendarSource final : public platform::CalendarSource {
public:
    [[nodiscard]] platform::Calendar current() const override {
        return {platform::TimeZone::system(), region_};
    }

private:
    platform::Region region_ = platform::Region::system();
};

} // namespace quillmere
