#include "Quillmere/app/TerminationSignals.h"

#include <QtCore/QCoreApplication>

#include <sys/eventfd.h>
#include <unistd.h>

#include <array>
#include <atomic>
#include <csignal>
#include <cstdint>

namespace quillmere {

namespace {

constexpr std::array handled{SIGTERM, SIGINT, SIGHUP};

std::atomic<int> eventOfProcess = -1;

void onSignal(int /*number*/) {
    const std::uint64_t one = 1;
    // Nothing can be done about a failure here, and the counter is never full.
    [[maybe_unused]] const auto written = write(eventOfProcess, &one, sizeof one);
}

} // namespace

TerminationSignals::TerminationSignals(QObject* parent)
    : QObject(parent),
      event_(eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK)),
      notifier_(event_.get(), QSocketNotifier::Read) {
    connect(&notifier_, &QSocketNotifier::activated, this, [this] {
        notifier_.setEnabled(false);
        QCoreApplication::quit();
    });
    eventOfProcess = event_.get();
    for (const int number : handled) {
        std::signal(number, onSignal);
    }
}

TerminationSignals::~TerminationSignals() {
    for (const int number : handled) {
        std::signal(number, SIG_DFL);
    }
    notifier_.setEnabled(false);
}

} // namespace quillmere
