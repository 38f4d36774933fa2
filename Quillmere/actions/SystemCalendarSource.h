#pragma once

#include "Platform/calendar/Calendar.h"

namespace quillmere {

/// The user's days as the system has them at each question, so that a changed zone counts from the
/// next run on. The region stays the default one: it says how dates are written and where weeks
/// begin, which the action never asks, and reading it takes longer than the program's start.
class SystemCalendarSource final : public platform::CalendarSource {
public:
    [[nodiscard]] platform::Calendar current() const override {
        return {platform::TimeZone::system(), platform::Region()};
    }
};

} // namespace quillmere
