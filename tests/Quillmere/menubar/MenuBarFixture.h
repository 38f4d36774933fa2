#pragma once

#include "Quillmere/menubar/MenuBarRootViewModel.h"
#include "tests/Quillmere/support/StoreFixture.h"

namespace quillmere {

/// The tray panel on a store in memory.
class MenuBarFixture : public StoreFixture {
    Q_OBJECT
    Q_PROPERTY(quillmere::MenuBarRootViewModel* model READ model CONSTANT)

public:
    [[nodiscard]] MenuBarRootViewModel* model() { return &model_; }

    Q_INVOKABLE bool isPrepared() { return session().settingsRecord() != nullptr; }
    /// What completing the first run leaves.
    Q_INVOKABLE void completeSetup();
    Q_INVOKABLE void removeAll();

private:
    MenuBarRootViewModel model_{session(), appState()};
};

} // namespace quillmere
