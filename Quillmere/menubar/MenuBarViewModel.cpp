#include "Quillmere/menubar/MenuBarViewModel.h"

#include "Platform/store/Context.h"
#include "Quillmere/shell/AppState.h"
#include "Quillmere/shell/StoreSession.h"
#include "QuillmereKit/maintenance/StorePreparation.h"

#include <utility>

namespace quillmere {

MenuBarViewModel::MenuBarViewModel(StoreSession& session, AppState& appState, QObject* parent)
    : QObject(parent), session_(session), appState_(appState), balance_(session) {
}

MenuBarViewModel::~MenuBarViewModel() = default;

void MenuBarViewModel::openComposer(TransactionComposerMode mode) {
    if (mode_ != mode) {
        setComposer(std::make_unique<TransactionComposerViewModel>(
                        session_, appState_, mode, [this](BalanceAdjustment&) { onSaved(); }),
                    mode);
    }
}

void MenuBarViewModel::addTime() {
    openComposer(TransactionComposerMode::add);
}

void MenuBarViewModel::takeFlexTime() {
    openComposer(TransactionComposerMode::take);
}

void MenuBarViewModel::closeComposer() {
    setComposer(nullptr, {});
}

// The form finishes by itself once this returns.
void MenuBarViewModel::onSaved() {
    try {
        StorePreparation::prepare(session_.context());
    } catch (const std::exception& error) {
        session_.context().rollback();
        appState_.report(error, tr("Couldn't prepare the menu-bar time bank"),
                         tr("The change wasn't saved. Please try again."));
    }
}

// The form may be closing from within its own save.
void MenuBarViewModel::setComposer(std::unique_ptr<TransactionComposerViewModel> composer,
                                   std::optional<TransactionComposerMode> mode) {
    auto old = std::exchange(composer_, std::move(composer));
    mode_ = mode;
    emit activeComposerChanged();
    if (old) {
        old.release()->deleteLater();
    }
}

} // namespace quillmere
