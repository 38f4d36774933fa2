#include "Quillmere/shell/ContinuousCountdown.h"

#include <sys/timerfd.h>
#include <unistd.h>

#include <cstdint>

namespace quillmere {

ContinuousCountdown::ContinuousCountdown(QObject* parent)
    : Countdown(parent),
      timer_(timerfd_create(CLOCK_BOOTTIME, TFD_NONBLOCK | TFD_CLOEXEC)),
      notifier_(timer_.get(), QSocketNotifier::Read) {
    connect(&notifier_, &QSocketNotifier::activated, this, &ContinuousCountdown::onReadable);
}

void ContinuousCountdown::start(std::chrono::milliseconds length) {
    const auto seconds = std::chrono::duration_cast<std::chrono::seconds>(length);
    itimerspec when{};
    when.it_value = {seconds.count(), std::chrono::nanoseconds(length - seconds).count()};
    timerfd_settime(timer_.get(), 0, &when, nullptr);
}

void ContinuousCountdown::cancel() {
    const itimerspec never{};
    timerfd_settime(timer_.get(), 0, &never, nullptr);
}

void ContinuousCountdown::onReadable() {
    std::uint64_t expirations = 0;
    if (read(timer_.get(), &expirations, sizeof expirations) == sizeof expirations) {
        emit finished();
    }
}

} // namespace quillmere
