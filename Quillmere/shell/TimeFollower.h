#pragma once

#include "Platform/base/Clock.h"
#include "Platform/calendar/Calendar.h"
#include "Quillmere/shell/InstantTimer.h"

#include <QtCore/QElapsedTimer>
#include <QtCore/QFileSystemWatcher>
#include <QtCore/QObject>

#include <mutex>

namespace quillmere {

/// The user's present time and calendar, followed while the program runs. Emits when anything that
/// shows "today" must look again: at midnight, when the clock was set, after a suspend, and when
/// the time zone changed. The region is read once. One per process; `now` and `current` may be
/// called on any thread, everything else on the main thread.
class TimeFollower : public QObject, public platform::CalendarSource {
    Q_OBJECT

public:
    /// The clock must outlive the object.
    explicit TimeFollower(const platform::Clock& clock, QObject* parent = nullptr);

    [[nodiscard]] const platform::Clock& clock() const { return clock_; }
    [[nodiscard]] platform::Instant now() const { return clock_.now(); }
    [[nodiscard]] platform::Calendar current() const override;

    /// Looks at clock and zone now, as the timers do by themselves, and emits `changed` when the
    /// day or the zone is another, or when the clock has moved by a second more or less than time
    /// has passed. Tests that move a `ManualClock` call it.
    void check();

signals:
    /// The day, the clock or the calendar changed. Receivers ask `now` and `current` again.
    void changed();

private:
    bool takeZone();
    bool takeDay();
    bool takeClock();

    const platform::Clock& clock_;
    mutable std::mutex mutex_; ///< guards `calendar_`
    platform::Calendar calendar_;
    platform::Instant today_;
    platform::Instant lastNow_;
    QElapsedTimer sinceLast_;
    InstantTimer midnight_;
    QFileSystemWatcher zoneWatcher_;
};

} // namespace quillmere
