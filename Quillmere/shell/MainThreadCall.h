#pragma once

#include <QtCore/QMetaObject>
#include <QtCore/QObject>

#include <functional>
#include <memory>
#include <mutex>

namespace quillmere {

/// Calls a function in an object's thread on behalf of any other, as long as the object is there.
/// Give copies of the shared pointer away; the object ends it with `cut`.
class MainThreadCall {
public:
    MainThreadCall(QObject& target, std::function<void()> call)
        : target_(&target), call_(std::move(call)) {}

    /// Any thread. The call comes from the target's event loop.
    void operator()() const {
        const std::scoped_lock lock(mutex_);
        if (target_ != nullptr) {
            QMetaObject::invokeMethod(target_, call_, Qt::QueuedConnection);
        }
    }

    /// From now on calls do nothing.
    void cut() {
        const std::scoped_lock lock(mutex_);
        target_ = nullptr;
    }

private:
    mutable std::mutex mutex_;
    QObject* target_;
    std::function<void()> call_;
};

} // namespace quillmere
