#include "Quillmere/menubar/MenuBarRootViewModel.h"

#include "Platform/store/Context.h"
#include "Quillmere/shell/AppState.h"
#include "Quillmere/shell/StoreSession.h"
#include "QuillmereKit/maintenance/StorePreparation.h"

#include <utility>

namespace quillmere {

MenuBarRootViewModel::MenuBarRootViewModel(StoreSession& session, AppState& appState,
                                           QObject* parent)
    : QObject(parent), session_(session), appState_(appState), timeBank_(session, appState) {
    connect(&session_, &StoreSession::settingsChanged, this, &MenuBarRootViewModel::updateIsSetUp);
    preparation_.setSingleShot(true);
    connect(&preparation_, &QTimer::timeout, this, &MenuBarRootViewModel::runPreparation);
    updateIsSetUp();
}

void MenuBarRootViewModel::prepare() {
    preparation_.start();
}

void MenuBarRootViewModel::runPreparation() {
    try {
        StorePreparation::prepare(session_.context());
    } catch (const std::exception& error) {
        session_.context().rollback();
        appState_.report(error, tr("Couldn't prepare Quillmere"),
                         tr("Open the main window and try setup again."));
    }
}

void MenuBarRootViewModel::updateIsSetUp() {
    const TimeBankSettings* settings = session_.settingsRecord();
    const bool isSetUp = settings && settings->hasCompletedOnboarding();
    if (std::exchange(isSetUp_, isSetUp) != isSetUp) {
        emit isSetUpChanged();
    }
}

} // namespace quillmere
