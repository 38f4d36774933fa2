#include "Quillmere/shell/TimeFollower.h"

#include <cmath>

namespace quillmere {

using platform::Calendar;
using platform::Instant;

namespace {

constexpr double clockToleranceSeconds = 1;
// A day without a next start of day lies at the end of the calendar; look again after a day's
// length.
constexpr double dayLengthSeconds = 86400;

Instant nextStartOfDay(const Calendar& calendar, Instant today) {
    const auto tomorrow = calendar.addingDays(today, 1);
    return tomorrow ? calendar.startOfDay(*tomorrow) : today + dayLengthSeconds;
}

} // namespace

TimeFollower::TimeFollower(const platform::Clock& clock, QObject* parent)
    : QObject(parent),
      clock_(clock),
      calendar_(platform::TimeZone::system(), platform::Region::system()),
      today_(calendar_.startOfDay(clock.now())),
      lastNow_(clock.now()),
      midnight_(clock) {
    sinceLast_.start();
    connect(&midnight_, &InstantTimer::fired, this, &TimeFollower::check);
    connect(&midnight_, &InstantTimer::clockSet, this, &TimeFollower::check);
    // The link is replaced in its folder; the file itself is watched for being written in place.
    zoneWatcher_.addPaths({QStringLiteral("/etc"), QStringLiteral("/etc/localtime")});
    connect(&zoneWatcher_, &QFileSystemWatcher::directoryChanged, this, &TimeFollower::check);
    connect(&zoneWatcher_, &QFileSystemWatcher::fileChanged, this, &TimeFollower::check);
    midnight_.schedule(nextStartOfDay(calendar_, today_));
}

Calendar TimeFollower::current() const {
    const std::scoped_lock lock(mutex_);
    return calendar_;
}

void TimeFollower::check() {
    const bool zoneMoved = takeZone();
    const bool dayMoved = takeDay();
    const bool clockMoved = takeClock();
    midnight_.schedule(nextStartOfDay(calendar_, today_));
    if (zoneMoved || dayMoved || clockMoved) {
        emit changed();
    }
}

bool TimeFollower::takeZone() {
    Calendar calendar(platform::TimeZone::system(), calendar_.region());
    if (calendar == calendar_) {
        return false;
    }
    const std::scoped_lock lock(mutex_);
    calendar_ = std::move(calendar);
    return true;
}

bool TimeFollower::takeDay() {
    const Instant today = calendar_.startOfDay(clock_.now());
    const bool moved = today != today_;
    today_ = today;
    return moved;
}

// The timer's clock stands still while the machine sleeps, so a suspend shows as a moved clock.
bool TimeFollower::takeClock() {
    const Instant now = clock_.now();
    const double passed = static_cast<double>(sinceLast_.nsecsElapsed()) * 1e-9;
    const bool moved = std::abs((now - lastNow_) - passed) > clockToleranceSeconds;
    lastNow_ = now;
    sinceLast_.start();
    return moved;
}

} // namespace quillmere
