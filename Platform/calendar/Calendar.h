#pragma once

#include "Platform/base/Instant.h"
#include "Platform/calendar/Region.h"
#include "Platform/calendar/TimeZone.h"

#include <compare>
#include <optional>

namespace platform {

/// A date of the proleptic Gregorian calendar, without time or zone.
struct CivilDate {
    int year = 1970;
    int month = 1; ///< 1 … 12
    int day = 1;   ///< 1 … 31

    friend constexpr auto operator<=>(const CivilDate&, const CivilDate&) = default;
};

/// Days as one user counts them: a time zone and a region. An immutable value, cheap to copy and safe
/// to share between threads.
///
/// A day is identified by its start: the first instant of the civil date in the zone. That is
/// midnight, except where midnight does not exist (the first instant after the gap) and where it
/// happens twice (the earlier of the two). A civil date that a zone skipped altogether has no start.
class Calendar {
public:
    Calendar(TimeZone zone, Region region);

    [[nodiscard]] const TimeZone& timeZone() const { return zone_; }
    [[nodiscard]] const Region& region() const { return region_; }

    /// The day on which weeks begin: 1 = Sunday … 7 = Saturday. From the region.
    [[nodiscard]] int firstWeekday() const { return region_.firstWeekday(); }

    /// The start of the day that contains `instant`.
    [[nodiscard]] Instant startOfDay(Instant instant) const;

    /// Start of the given civil date; nothing for a date that is not one, lies outside the years
    /// −9999 … 9999 or was skipped by the zone.
    [[nodiscard]] std::optional<Instant> startOfDay(CivilDate date) const;

    /// The same wall-clock time `days` civil days later (earlier when negative); a time that does not
    /// exist there moves forward by the gap, one that happens twice is the earlier. A skipped civil
    /// date is stepped over in the direction of travel. Callers that walk days take `startOfDay` of
    /// the result again. Nothing when the result leaves the range above or `instant` is not finite.
    [[nodiscard]] std::optional<Instant> addingDays(Instant instant, int days) const;

    /// Seconds added as elapsed time; nothing when the result is not finite.
    [[nodiscard]] std::optional<Instant> addingSeconds(Instant instant, double seconds) const;

    /// Civil date of the instant in this zone. Instants outside the range above are clamped into it.
    [[nodiscard]] CivilDate civilDate(Instant instant) const;

    /// 1 = Sunday, 2 = Monday, … 7 = Saturday, in this zone.
    [[nodiscard]] int weekday(Instant instant) const;

    [[nodiscard]] bool isSameDay(Instant a, Instant b) const;

    friend bool operator==(const Calendar&, const Calendar&) = default;

private:
    TimeZone zone_;
    Region region_;
};

/// Where the user's current calendar comes from; follows later changes of zone and region.
class CalendarSource {
public:
    virtual ~CalendarSource() = default;
    /// The calendar to use now. May be called on any thread.
    [[nodiscard]] virtual Calendar current() const = 0;
};

/// A source that always answers the calendar it was given, for tests and simulations.
class FixedCalendarSource final : public CalendarSource {
public:
    explicit FixedCalendarSource(Calendar calendar) : calendar_(std::move(calendar)) {}
    [[nodiscard]] Calendar current() const override { return calendar_; }
    void set(Calendar calendar) { calendar_ = std::move(calendar); }

private:
    Calendar calendar_;
};

} // namespace platform
