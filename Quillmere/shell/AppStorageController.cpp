#include "Quillmere/shell/AppStorageController.h"

#include "Platform/store/StoreError.h"

#include <QtCore/QTimer>

#include <chrono>
#include <utility>

namespace quillmere {

namespace {

using namespace std::chrono_literals;
constexpr auto settlingTime = 250ms;

} // namespace

AppStorageController::AppStorageController(AppModelContainer& opener,
                                           AppModelContainer::Result result, TimeFollower& time,
                                           StoreSession::Reading reading, QObject* parent)
    : QObject(parent), opener_(opener), time_(time), reading_(reading) {
    adopt(std::move(result));
}

AppStorageController::~AppStorageController() {
    delete session_.release();
}

void AppStorageController::readHistory() {
    const auto before = std::exchange(reading_, StoreSession::Reading::atOnce);
    if (before == StoreSession::Reading::whenAsked && session_) {
        session_->readHistory();
    }
}

void AppStorageController::retryICloud(std::function<void(bool)> done) {
    if (mode() == PersistenceMode::iCloud || isRetryingICloud_) {
        if (done) {
            done(mode() == PersistenceMode::iCloud);
        }
        return;
    }
    setLastRetryFailed(false);
    setRetrying(true);
    letGo();
    QTimer::singleShot(settlingTime, Qt::PreciseTimer, this,
                       [this, done = std::move(done)] { finishRetry(done); });
}

void AppStorageController::finishRetry(const std::function<void(bool)>& done) {
    AppModelContainer::Result result = opener_.synchronised();
    const bool succeeded = result.container != nullptr;
    adopt(succeeded ? std::move(result) : opener_.localFallback());
    setRetrying(false);
    setLastRetryFailed(!succeeded);
    if (done) {
        done(succeeded);
    }
}

void AppStorageController::adopt(AppModelContainer::Result result) {
    result_ = std::move(result);
    if (result_.container) {
        openSession();
    }
    emit sessionChanged();
    emit resultChanged();
}

void AppStorageController::openSession() {
    try {
        session_.reset(new StoreSession(result_.container, time_, reading_));
        connect(session_.get(), &StoreSession::readingFailed, this,
                [this](const QString& reason) { opener_.logUnreadable(reason.toStdString()); });
    } catch (const platform::store::StoreError& error) {
        opener_.logUnreadable(error.what());
        result_ = {};
    }
}

// The listeners of `sessionChanged` queue the deletion of what holds the session, and only then the
// session queues its own.
void AppStorageController::letGo() {
    const auto old = std::move(session_);
    result_ = {};
    emit sessionChanged();
    emit resultChanged();
}

void AppStorageController::setRetrying(bool retrying) {
    if (isRetryingICloud_ != retrying) {
        isRetryingICloud_ = retrying;
        emit isRetryingICloudChanged();
    }
}

void AppStorageController::setLastRetryFailed(bool failed) {
    if (didLastICloudRetryFail_ != failed) {
        didLastICloudRetryFail_ = failed;
        emit didLastICloudRetryFailChanged();
    }
}

} // namespace quillmere
