#pragma once

#include "Platform/base/Instant.h"
#include "Platform/calendar/CivilDate.h"
#include "Platform/calendar/DateInterval.h"
#include "Platform/calendar/Region.h"
#include "Platform/calendar/TimeZone.h"

#include <cstdint>
#include <optional>
#include <utility>

namespace platform {

/// Days as one user counts them: a time zone and a region. An immutable value, cheap to copy and
/// safe to share between threads.
///
/// A day is a civil date of the zone and is identified by its start: the first instant that bears
/// the date. That is midnight, except where midnight does not exist (the first instant after the
/// gap) and where it happens twice (the earlier of the two). A date that a zone skipped altogether
/// has no start. Where a zone set its clocks back across midnight, an hour of the old date follows
/// the start of the new one; it belongs to the old date.
///
/// Civil dates are Gregorian whatever the region's calendar system; months are those of that system
/// (`RegionMonths.h`), in which `DateText` writes dates too.
///
/// Every function takes every instant: outside `earliest` … `latest` the nearer of the two is
/// meant, and 1970 for an instant that is not a number.
class Calendar {
public:
    /// −9999-01-02 and 9999-12-30, both 00:00 UTC: in every zone inside the years of `CivilDate`.
    static constexpr Instant earliest{-377705030400.0};
    static constexpr Instant latest{253402128000.0};

    Calendar(TimeZone zone, Region region);

    [[nodiscard]] const TimeZone& timeZone() const { return zone_; }
    [[nodiscard]] const Region& region() const { return region_; }

    /// The day on which weeks begin: 1 = Sunday … 7 = Saturday. From the region.
    [[nodiscard]] int firstWeekday() const { return region_.firstWeekday(); }

    /// The start of the day that contains `instant`; never after `instant` within the range.
    [[nodiscard]] Instant startOfDay(Instant instant) const;

    /// Start of the given civil date; nothing for a date that is not one, was skipped by the zone,
    /// or lies outside the days of `earliest` … `latest`.
    [[nodiscard]] std::optional<Instant> startOfDay(CivilDate date) const;

    /// The same wall-clock time `days` civil days later (earlier when negative); a time that does
    /// not exist there moves forward by the gap, one that happens twice is the earlier. A skipped
    /// civil date is stepped over in the direction of travel. Callers that walk days take
    /// `startOfDay` of the result again. Nothing when `instant` or the result lies outside
    /// `earliest` … `latest`.
    [[nodiscard]] std::optional<Instant> addingDays(Instant instant, int days) const;

    /// As `addingDays`, by months: the same day of the month, or the last one of a shorter month.
    [[nodiscard]] std::optional<Instant> addingMonths(Instant instant, int months) const;

    /// The wall-clock time of `time` on another date, by the rules of `addingDays`; nothing for a
    /// date that has no start.
    [[nodiscard]] std::optional<Instant> atDate(CivilDate date, Instant time) const;

    /// Seconds added as elapsed time; nothing when the result is not finite.
    [[nodiscard]] std::optional<Instant> addingSeconds(Instant instant, double seconds) const;

    /// The week that contains `instant`, from the start of its first day (`firstWeekday`) to the
    /// start of the next week's. Where that first day was skipped the week begins with the day
    /// after it.
    [[nodiscard]] DateInterval weekInterval(Instant instant) const;

    /// The month that contains `instant`, from the start of its first day to that of the next
    /// month.
    [[nodiscard]] DateInterval monthInterval(Instant instant) const;

    /// Civil date of the instant in this zone.
    [[nodiscard]] CivilDate civilDate(Instant instant) const;

    /// What the clocks of this zone show, as whole seconds since 1970-01-01 00:00 on that same
    /// clock: a civil time without zone, for writing it.
    [[nodiscard]] std::int64_t civilSeconds(Instant instant) const;

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
