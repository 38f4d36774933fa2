#include "Quillmere/menubar/MenuBarLabelViewModel.h"

#include "Quillmere/shell/AppStorageController.h"
#include "Quillmere/shell/LedgerBalance.h"
#include "Quillmere/shell/PreferencesFollower.h"
#include "QuillmereKit/records/AppConstants.h"

#include <chrono>
#include <utility>

namespace quillmere {

namespace {

constexpr std::chrono::milliseconds openingDelay{250};

} // namespace

MenuBarLabelViewModel::MenuBarLabelViewModel(const AppStorageController& storage,
                                             const PreferencesFollower& preferences,
                                             QObject* parent)
    : QObject(parent), storage_(storage), preferences_(preferences) {
    opening_.setSingleShot(true);
    connect(&opening_, &QTimer::timeout, this, &MenuBarLabelViewModel::mainWindowRequested);
    connect(&storage_, &AppStorageController::sessionChanged, this,
            &MenuBarLabelViewModel::onSessionChanged);
    connect(&preferences_, &PreferencesFollower::changed, this, &MenuBarLabelViewModel::update);
    onSessionChanged();
}

MenuBarLabelViewModel::~MenuBarLabelViewModel() = default;

void MenuBarLabelViewModel::appear() {
    if (!std::exchange(hasAppeared_, true)) {
        opening_.start(openingDelay);
    }
}

void MenuBarLabelViewModel::onSessionChanged() {
    balance_.reset();
    if (StoreSession* session = storage_.session()) {
        balance_ = std::make_unique<LedgerBalance>(*session);
        connect(balance_.get(), &LedgerBalance::changed, this, &MenuBarLabelViewModel::update);
    }
    update();
}

void MenuBarLabelViewModel::update() {
    MenuBarLabel label = current();
    if (label != label_) {
        label_ = std::move(label);
        emit changed();
    }
}

MenuBarLabel MenuBarLabelViewModel::current() const {
    if (!balance_) {
        return {};
    }
    const auto stored = preferences_.domain().string(AppConstants::menuBarDisplayModeKey);
    return {true, MenuBarDisplayModes::of(stored.value_or("")), balance_->text(),
            balance_->spoken()};
}

} // namespace quillmere
