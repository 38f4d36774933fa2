#pragma once

#include <QtCore/QObject>

#include <chrono>

namespace quillmere {

/// Lets something happen once, after a while. Main thread.
class Countdown : public QObject {
    Q_OBJECT

public:
    using QObject::QObject;

    /// Begins anew, whatever was counting before.
    virtual void start(std::chrono::milliseconds length) = 0;
    virtual void cancel() = 0;

signals:
    /// The time is over; not emitted after `cancel`.
    void finished();
};

} // namespace quillmere
