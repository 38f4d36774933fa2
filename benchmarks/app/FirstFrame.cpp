#include "benchmarks/app/FirstFrame.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QFile>
#include <QtQuick/QQuickWindow>

#include <chrono>
#include <cstdio>
#include <ctime>
#include <utility>

namespace quillmere {

namespace {

double millisecondsSinceStart() {
    const auto now = std::chrono::steady_clock::now().time_since_epoch();
    const auto nanoseconds = std::chrono::duration_cast<std::chrono::nanoseconds>(now).count();
    return static_cast<double>(nanoseconds -
                               qEnvironmentVariable("QUILLMERE_BENCH_STARTED").toLongLong()) /
           1e6;
}

double processorMilliseconds() {
    timespec used{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &used);
    return static_cast<double>(used.tv_sec) * 1e3 + static_cast<double>(used.tv_nsec) / 1e6;
}

int residentKibibytes() {
    QFile status(QStringLiteral("/proc/self/status"));
    if (!status.open(QIODevice::ReadOnly)) {
        return 0;
    }
    const QList<QByteArray> lines = status.readAll().split('\n');
    for (const QByteArray& line : lines) {
        if (line.startsWith("VmRSS:")) {
            return line.mid(6).trimmed().split(' ').first().toInt();
        }
    }
    return 0;
}

} // namespace

FirstFrame::FirstFrame(QQuickWindow& window, std::function<bool()> counts)
    : QObject(&window), counts_(std::move(counts)) {
    connect(
        &window, &QQuickWindow::afterSynchronizing, this,
        [this] { frameCounts_ = frameCounts_ || counts_(); }, Qt::DirectConnection);
    connect(&window, &QQuickWindow::frameSwapped, this, &FirstFrame::onSwapped,
            Qt::DirectConnection);
}

void FirstFrame::onSwapped() {
    if (!frameCounts_ || done_) {
        return;
    }
    done_ = true;
    const double milliseconds = millisecondsSinceStart();
    std::printf("%.3f %d %.3f\n", milliseconds, residentKibibytes(), processorMilliseconds());
    std::fflush(stdout);
    QMetaObject::invokeMethod(qApp, "quit", Qt::QueuedConnection);
}

} // namespace quillmere
