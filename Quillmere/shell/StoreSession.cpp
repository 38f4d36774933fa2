#include "Quillmere/shell/StoreSession.h"

#include "Quillmere/shell/MainThreadCall.h"
#include "Quillmere/shell/TimeFollower.h"
#include "QuillmereKit/maintenance/StoredBalance.h"

#include <QtCore/QSocketNotifier>
#include <QtCore/QTimer>

#include <chrono>
#include <condition_variable>
#include <exception>
#include <memory>
#include <mutex>
#include <optional>
#include <thread>
#include <utility>

namespace quillmere {

namespace {

using namespace std::chrono_literals;
using platform::store::CommitWatch;
using platform::store::Store;
using platform::store::StoreError;
using platform::store::Subscription;

constexpr auto pollInterval = 1s;
constexpr auto readAgainAfter = 5s;
constexpr auto verifyAfter = 2s; // leaves processors and disk to the first frames

// Returns false when the thread is asked to stop meanwhile.
bool waitFor(std::chrono::seconds time, const std::stop_token& stop) {
    std::mutex mutex;
    std::unique_lock lock(mutex);
    std::condition_variable_any stopped;
    stopped.wait_for(lock, stop, time, [] { return false; });
    return !stop.stop_requested();
}

} // namespace

class StoreSession::Impl {
public:
    Impl(std::shared_ptr<Store> openedStore, TimeFollower& timeFollower)
        : store(std::move(openedStore)),
          time(timeFollower),
          context(store->makeContext({time.clock(), time})),
          settings(*context),
          adjustments(*context) {}

    std::shared_ptr<Store> store;
    TimeFollower& time;
    std::unique_ptr<platform::store::Context> context;
    SettingsQuery settings;
    AdjustmentsQuery adjustments;
    std::optional<Subscription> settingsSubscription;
    std::optional<Subscription> adjustmentsSubscription;
    std::shared_ptr<MainThreadCall> onCommit;
    std::shared_ptr<void> commitRegistration;
    std::unique_ptr<CommitWatch> watch;
    std::unique_ptr<QSocketNotifier> watchNotifier;
    QTimer poll;
    std::jthread historyReader;
};

StoreSession::StoreSession(std::shared_ptr<Store> store, TimeFollower& time, Reading reading,
                           QObject* parent)
    : QObject(parent), impl_(std::make_unique<Impl>(std::move(store), time)) {
    impl_->settings.load();
    listen();
    watchOthers();
    if (reading == Reading::atOnce) {
        QTimer::singleShot(0, this, &StoreSession::readHistory);
    }
}

StoreSession::~StoreSession() {
    impl_->onCommit->cut();
}

platform::store::Context& StoreSession::context() {
    return *impl_->context;
}

TimeFollower& StoreSession::time() {
    return impl_->time;
}

StoreSession::SettingsQuery& StoreSession::settings() {
    return impl_->settings;
}

StoreSession::AdjustmentsQuery& StoreSession::adjustments() {
    return impl_->adjustments;
}

bool StoreSession::isLoading() const {
    return impl_->adjustments.state() == platform::store::LiveState::loading;
}

TimeBankSettings* StoreSession::settingsRecord() {
    return impl_->settings.isEmpty() ? nullptr : impl_->settings.record(0);
}

TimeBankSettingsValues StoreSession::settingsValues() {
    const TimeBankSettings* settings = settingsRecord();
    return settings ? settings->values() : TimeBankSettingsValues{};
}

std::int64_t StoreSession::minutesInStore() {
    return StoredBalance(*impl_->context).balanceMinutes(impl_->time.now());
}

void StoreSession::listen() {
    impl_->settingsSubscription =
        impl_->settings.observe([this](const auto&) { emit settingsChanged(); });
    impl_->adjustmentsSubscription =
        impl_->adjustments.observe([this](const auto& steps) { emit adjustmentsChanged(steps); });
}

void StoreSession::watchOthers() {
    impl_->onCommit = std::make_shared<MainThreadCall>(*this, [this] { refresh(); });
    impl_->commitRegistration = impl_->store->onCommit([call = impl_->onCommit] { (*call)(); });
    try {
        impl_->watch = impl_->store->watchCommits();
        impl_->watchNotifier =
            std::make_unique<QSocketNotifier>(impl_->watch->fd(), QSocketNotifier::Read);
        connect(impl_->watchNotifier.get(), &QSocketNotifier::activated, this, [this] {
            if (impl_->watch->drain()) {
                refresh();
            }
        });
    } catch (const StoreError&) {
        // The system has no more watches to give. Looking costs microseconds.
        connect(&impl_->poll, &QTimer::timeout, this, &StoreSession::refresh);
        impl_->poll.start(pollInterval);
    }
}

void StoreSession::refresh() {
    try {
        impl_->context->refresh();
        emit refreshed();
    } catch (const StoreError& error) {
        emit readingFailed(QString::fromUtf8(error.what()));
    }
}

void StoreSession::readHistory() {
    impl_->historyReader =
        std::jthread([this](const std::stop_token& stop) { readAndVerify(stop); });
}

// Hands the rows over first and then looks the whole file through: what is damaged is better found
// before something is saved on top of it.
void StoreSession::readAndVerify(const std::stop_token& stop) {
    const auto onMainThread = [this](auto function) {
        QMetaObject::invokeMethod(this, std::move(function), Qt::QueuedConnection);
    };
    try {
        auto rows =
            std::make_shared<AdjustmentsQuery::Loaded>(AdjustmentsQuery::readRows(*impl_->store));
        onMainThread([this, rows] { adoptHistory(*rows); });
    } catch (const std::exception& error) {
        onMainThread([this, reason = QString::fromUtf8(error.what())] { onHistoryFailed(reason); });
        return;
    }
    if (!waitFor(verifyAfter, stop)) {
        return;
    }
    try {
        impl_->store->verify();
    } catch (const std::exception& error) {
        onMainThread(
            [this, reason = QString::fromUtf8(error.what())] { emit readingFailed(reason); });
    }
}

void StoreSession::adoptHistory(AdjustmentsQuery::Loaded& rows) {
    try {
        impl_->adjustments.adopt(std::move(rows));
    } catch (const StoreError& error) {
        onHistoryFailed(QString::fromUtf8(error.what()));
    }
}

void StoreSession::onHistoryFailed(const QString& reason) {
    emit readingFailed(reason);
    QTimer::singleShot(readAgainAfter, this, &StoreSession::readHistory);
}

} // namespace quillmere
