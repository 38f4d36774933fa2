#include "Quillmere/shell/BackgroundWork.h"

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

bool BackgroundWork::start(Kind kind, const QString& title, std::function<void()> work, Done done) {
    if (isRunning_) {
        return false;
    }
    kind_ = kind;
    title_ = title;
    isRunning_ = true;
    showing_.start();
    emit changed();
    worker_ = std::jthread([this, work = std::move(work), done = std::move(done)] {
        std::exception_ptr problem;
        try {
            work();
        } catch (...) {
            problem = std::current_exception();
        }
        QMetaObject::invokeMethod(
            this, [this, done, problem] { finish(done, problem); }, Qt::QueuedConnection);
    });
    return true;
}

void BackgroundWork::show() {
    isShown_ = true;
    emit changed();
}

void BackgroundWork::finish(const Done& done, const std::exception_ptr& problem) {
    showing_.stop();
    isRunning_ = false;
    isShown_ = false;
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
