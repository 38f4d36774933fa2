#pragma once

#include "Platform/base/Instant.h"

namespace platform {

/// Where "now" comes from. Whoever needs the time is handed one; only `SystemClock` asks the
/// system.
class Clock {
public:
    virtual ~Clock() = default;
    /// The current time. May be called on any thread.
    [[nodiscard]] virtual Instant now() const = 0;
};

/// The system's real-time clock.
class SystemClock final : public Clock {
public:
    [[nodiscard]] Instant now() const override;
};

/// A clock that stands still until it is set, for tests and simulations. Not synchronised.
class ManualClock final : public Clock {
public:
    explicit ManualClock(Instant start) : now_(start) {}
    [[nodiscard]] Instant now() const override { return now_; }
    void set(Instant instant) { now_ = instant; }
    void advance(double seconds) { now_ = now_ + seconds; }

private:
    Instant now_;
};

} // namespace platform
