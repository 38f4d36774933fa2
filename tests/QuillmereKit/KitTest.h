#pragma once

#include "Platform/base/Clock.h"
#include "Platform/calendar/Calendar.h"
#include "Platform/store/Store.h"
#include "QuillmereKit/persistence/QuillmerePersistence.h"
#include "QuillmereKit/records/BalanceAdjustment.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace quillmere::test {

using platform::Calendar;
using platform::CivilDate;
using platform::Instant;
using platform::Uuid;

inline constexpr double minute = 60;
inline constexpr double hour = 3600;
inline constexpr double day = 24 * hour;

inline Calendar calendarIn(const char* zone) {
    return {platform::TimeZone::named(zone).value(), platform::Region::fromLocale("de_DE")};
}

inline const Calendar berlinCalendar = calendarIn("Europe/Berlin");

/// Local time in Berlin, on days without a clock change.
inline Instant berlin(int month, int dayOfMonth, double hours = 0, int year = 2026) {
    return berlinCalendar.startOfDay(CivilDate{year, month, dayOfMonth}).value() + hours * hour;
}

/// A UUID that sorts by its number.
inline Uuid uuid(std::uint8_t number) {
    Uuid::Bytes bytes{};
    bytes.back() = number;
    return Uuid(bytes);
}

/// A store in memory, on a Wednesday noon in Berlin.
class StoreTest : public ::testing::Test {
protected:
    [[nodiscard]] std::unique_ptr<platform::store::Context> makeContext() {
        return store->makeContext({clock, calendars});
    }

    BalanceAdjustment& insertChange(Instant date, std::int64_t minutes, Uuid id = Uuid::random()) {
        return context->insert(std::make_unique<BalanceAdjustment>(
            id, date, minutes, "", BalanceAdjustmentKind::manual, date, date));
    }

    Instant now = berlin(3, 4, 12);
    Calendar calendar = berlinCalendar;
    platform::ManualClock clock{now};
    platform::FixedCalendarSource calendars{calendar};
    std::shared_ptr<platform::store::Store> store =
        QuillmerePersistence::makeContainer(true, true, true, {});
    std::unique_ptr<platform::store::Context> context = makeContext();
};

} // namespace quillmere::test
