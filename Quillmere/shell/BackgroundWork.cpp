#include "Quillmere/shell/BackgroundWork.h"

#include <algorithm>
#include <chrono>
#include <utility>

namespace quillmere {

namespace {

constexpr std::chrono::milliseconds noticeable{500};

} // namespace

BackgroundWork::BackgroundWork(QObject* parent) : QObject(parent) {
    showing_.setSingleShot(true);
    showing_.setInterval(noticeable);
    connect(&showing_, &QTimer::timeout, this, &BackgroundWork::show);
}

BackgroundWork::~BackgroundWork() = default;

QString BackgroundWork::title() const {
    return isRunning() ? pieces_.front().title : QString();
}

bool BackgroundWork::isHoldingInput() const {
    return std::ranges::find(pieces_, Kind::writing, &Piece::kind) != pieces_.end();
}

// Each worker waits for the one before it.
void BackgroundWork::start(Kind kind, const QString& title, std::function<void()> work, Done done) {
    if (!isRunning()) {
        showing_.start();
    }
    pieces_.push_back({kind, title});
    emit changed();
    worker_ = std::jthread([this, before = std::move(worker_), work = std::move(work),
                            done = std::move(done)]() mutable {
        if (before.joinable()) {
            before.join();
        }
        std::exception_ptr problem;
        try {
            work();
        } catch (...) {
            problem = std::current_exception();
        }
        QMetaObject::invokeMethod(
            this, [this, done, problem] { finish(done, problem); }, Qt::QueuedConnection);
    });
}

void BackgroundWork::show() {
    isShown_ = true;
    emit changed();
}

void BackgroundWork::finish(const Done& done, const std::exception_ptr& problem) {
    pieces_.pop_front();
    if (!isRunning()) {
        showing_.stop();
        isShown_ = false;
    }
    emit changed();
    if (!problem) {
        done(nullptr);
        return;
    }
    try {
        std::rethrow_exception(problem);
    } catch (const std::exception& error) {
        done(&error);
    }
}

} // namespace quillmere
