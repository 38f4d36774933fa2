#include "Quillmere/widget/WidgetRefreshObserverViewModel.h"

#include "Quillmere/shell/AppState.h"
#include "Quillmere/shell/StoreSession.h"
#include "Quillmere/shell/TimeFollower.h"
#include "QuillmereKit/widget/WidgetSnapshotBuilder.h"

#include <chrono>
#include <utility>

namespace quillmere {

namespace {

constexpr std::chrono::milliseconds debounceTime{350};
constexpr double minimumIntervalSeconds = 0.5;

} // namespace

WidgetRefreshObserverViewModel::WidgetRefreshObserverViewModel(StoreSession& session,
                                                               AppState& appState,
                                                               const Services& services,
                                                               std::unique_ptr<Countdown> debounce,
                                                               QObject* parent)
    : QObject(parent),
      session_(session),
      appState_(appState),
      log_(services.log, "dev.vantor.quillmere", "WidgetRefresh"),
      publisher_(services.publisher),
      debounce_(std::move(debounce)) {
    connect(&session, &StoreSession::adjustmentsChanged, this,
            &WidgetRefreshObserverViewModel::update);
    connect(&session, &StoreSession::settingsChanged, this,
            &WidgetRefreshObserverViewModel::update);
    connect(&session.time(), &TimeFollower::changed, this,
            &WidgetRefreshObserverViewModel::startJob);
    connect(debounce_.get(), &Countdown::finished, this, &WidgetRefreshObserverViewModel::refresh);
    update();
}

void WidgetRefreshObserverViewModel::setActive(bool isActive) {
    if (std::exchange(isActive_, isActive) != isActive) {
        emit isActiveChanged();
        update();
    }
}

void WidgetRefreshObserverViewModel::update() {
    if (session_.isLoading()) {
        return;
    }
    const WidgetRefreshSignature now = signature();
    if (std::exchange(signature_, now) != now) {
        startJob();
    }
}

// Takes the place of the job under way.
void WidgetRefreshObserverViewModel::startJob() {
    if (signature_ && signature_->isActive) {
        debounce_->start(debounceTime);
    } else {
        debounce_->cancel();
    }
}

void WidgetRefreshObserverViewModel::refresh() {
    if (appState_.work()->isHoldingInput()) {
        debounce_->start(debounceTime); // a repair would wait for the store with the window
        return;
    }
    const platform::Instant now = session_.time().now();
    if (!appState_.claimWidgetRefresh(now, minimumIntervalSeconds)) {
        return;
    }
    try {
        publisher_.publish(WidgetSnapshotBuilder::make(session_.context(), now));
    } catch (const std::exception& error) {
        session_.context().rollback();
        log_.write(platform::LogLevel::error,
                   "Automatic widget refresh failed: ", platform::PrivateText{error.what()});
    }
}

WidgetRefreshSignature WidgetRefreshObserverViewModel::signature() const {
    WidgetRefreshSignature signature{.isActive = isActive_, .adjustments = {}, .settings = {}};
    for (const LedgerRow& row : session_.adjustments().rows()) {
        signature.adjustments.add({row.id, row.modifiedAt});
    }
    for (const SettingsRow& row : session_.settings().rows()) {
        signature.settings.add({row.values.id, row.values.modifiedAt});
    }
    return signature;
}

} // namespace quillmere
