#pragma once

#include "Platform/base/Clock.h"
#include "Platform/base/UniqueFd.h"

#include <QtCore/QObject>
#include <QtCore/QSocketNotifier>

#include <optional>

namespace quillmere {

/// Fires once when the wall clock reaches an instant, also when the clock is set past it or the
/// machine slept over it. Main thread.
class InstantTimer : public QObject {
    Q_OBJECT

public:
    /// The clock must outlive the object.
    explicit InstantTimer(const platform::Clock& clock, QObject* parent = nullptr);
    ~InstantTimer() override;

    /// Replaces what was scheduled before. An instant that has passed fires from the event loop;
    /// one that is not finite never fires.
    void schedule(platform::Instant instant);
    void cancel();
    [[nodiscard]] bool isScheduled() const { return target_.has_value(); }

    /// Asks the clock now, as the kernel's timer does by itself, and fires when the instant has
    /// come. For clocks that are not the system's.
    void check();

signals:
    void fired();
    /// The system clock was set while something was scheduled; it stays scheduled.
    void clockSet();

private:
    void arm();
    void onReadable();

    const platform::Clock& clock_;
    platform::UniqueFd timer_;
    QSocketNotifier notifier_;
    std::optional<platform::Instant> target_;
};

} // namespace quillmere
