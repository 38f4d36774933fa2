#include "Quillmere/shell/InstantTimer.h"

#include <sys/timerfd.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cmath>
#include <cstdint>

namespace quillmere {

namespace {

// Far enough to be never and near enough for a time_t and the kernel's nanoseconds.
constexpr double longestWaitSeconds = 100.0 * 365 * 86400;
constexpr double shortestWaitSeconds = 0.001;

timespec timespecOf(double seconds) {
    const double whole = std::floor(seconds);
    return {static_cast<time_t>(whole), static_cast<long>((seconds - whole) * 1e9)};
}

double systemSeconds() {
    timespec now{};
    clock_gettime(CLOCK_REALTIME, &now);
    return static_cast<double>(now.tv_sec) + static_cast<double>(now.tv_nsec) * 1e-9;
}

} // namespace

InstantTimer::InstantTimer(const platform::Clock& clock, QObject* parent)
    : QObject(parent),
      clock_(clock),
      timer_(timerfd_create(CLOCK_REALTIME, TFD_NONBLOCK | TFD_CLOEXEC)),
      notifier_(timer_.get(), QSocketNotifier::Read) {
    connect(&notifier_, &QSocketNotifier::activated, this, &InstantTimer::onReadable);
}

InstantTimer::~InstantTimer() {
    notifier_.setEnabled(false);
}

void InstantTimer::schedule(platform::Instant instant) {
    if (!std::isfinite(instant.secondsSince1970)) {
        cancel();
        return;
    }
    target_ = instant;
    arm();
}

void InstantTimer::cancel() {
    target_.reset();
    const itimerspec never{};
    timerfd_settime(timer_.get(), 0, &never, nullptr);
}

// Absolute time and not an interval: a suspended machine wakes to a timer that has expired.
void InstantTimer::arm() {
    const double wait =
        std::clamp(*target_ - clock_.now(), shortestWaitSeconds, longestWaitSeconds);
    itimerspec when{};
    when.it_value = timespecOf(systemSeconds() + wait);
    timerfd_settime(timer_.get(), TFD_TIMER_ABSTIME | TFD_TIMER_CANCEL_ON_SET, &when, nullptr);
}

void InstantTimer::onReadable() {
    std::uint64_t expirations = 0;
    const bool wasSet =
        read(timer_.get(), &expirations, sizeof expirations) < 0 && errno == ECANCELED;
    check();
    if (wasSet) {
        emit clockSet();
    }
}

void InstantTimer::check() {
    if (!target_) {
        return;
    }
    if (clock_.now() < *target_) {
        arm();
        return;
    }
    cancel();
    emit fired();
}

} // namespace quillmere
