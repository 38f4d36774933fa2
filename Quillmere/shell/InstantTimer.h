#pragma once

#include "Platform/base/Clock.h"

#include <QtCore/QObject>

#include <memory>

namespace quillmere {

/// Fires once when the wall clock reaches an instant, also when the clock is set past it or the
/// machine slept over it. Main thread.
class InstantTimer : public QObject {
    Q_OBJECT

public:
    /// The clock must outlive the object.
    explicit InstantTimer(const platform::Clock& clock, QObject* parent = nullptr);
    ~InstantTimer() override;

    /// Replaces what was scheduled before. An instant that has passed fires from the event loop.
    void schedule(platform::Instant instant);
    void cancel();

signals:
    void fired();
    /// The system clock was set; what is scheduled stays scheduled.
    void clockSet();

private:
    class Impl;
    std::unique_ptr<Impl> impl_;
};

} // namespace quillmere
