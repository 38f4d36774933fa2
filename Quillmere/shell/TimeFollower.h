#pragma once

#include "Platform/base/Clock.h"
#include "Platform/calendar/Calendar.h"

#include <QtCore/QObject>

#include <memory>

namespace quillmere {

/// The user's present time and calendar, followed while the program runs. Emits when anything that
/// shows "today" must look again: at midnight, when the clock was set, after a suspend, and when the
/// time zone changed. One per process; `current` and `now` may be called on any thread.
class TimeFollower : public QObject, public platform::CalendarSource {
    Q_OBJECT

public:
    /// The clock must outlive the object.
    explicit TimeFollower(const platform::Clock& clock, QObject* parent = nullptr);
    ~TimeFollower() override;

    [[nodiscard]] const platform::Clock& clock() const;
    [[nodiscard]] platform::Instant now() const;
    [[nodiscard]] platform::Calendar current() const override;

    /// Looks at clock and zone now, as the timers do by themselves, and emits `changed` when the day,
    /// the zone or the clock moved.
    void check();

signals:
    /// The day, the clock or the calendar changed. Receivers ask `now` and `current` again.
    void changed();

private:
    class Impl;
    std::unique_ptr<Impl> impl_;
};

} // namespace quillmere
