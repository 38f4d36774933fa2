#pragma once

#include "Platform/autostart/LoginItem.h"
#include "Platform/files/UserFolders.h"
#include "Quillmere/settings/SettingsViewModel.h"
#include "Quillmere/shell/AppStorageController.h"
#include "Quillmere/shell/PreferencesFollower.h"
#include "tests/Quillmere/shell/FakeStoreOpener.h"
#include "tests/Quillmere/support/StoreFixture.h"
#include "tests/Quillmere/widget/CountingWidgetCenter.h"

#include <QtCore/QTemporaryDir>

#include <memory>

namespace quillmere {

/// The settings on an empty store that could not be synchronised, and what became of the
/// preferences.
class SettingsFixture : public StoreFixture {
    Q_OBJECT

public:
    SettingsFixture();
    ~SettingsFixture() override;

    Q_INVOKABLE quillmere::SettingsViewModel* open();
    Q_INVOKABLE QString preference(const QString& key);

private:
    FakeStoreOpener opener_;
    AppModelContainer container_{opener_, log()};
    std::unique_ptr<AppStorageController> storage_;
    PreferencesFollower follower_{preferences()};
    QTemporaryDir folder_;
    platform::UserFolders folders_{{}, {}, folder_.path().toStdString()};
    platform::LoginItem loginItem_{folder_.path().toStdString(), "quillmere", "Quillmere",
                                   "/usr/bin/quillmere"};
    CountingWidgetCenter widgets_;
    std::unique_ptr<SettingsViewModel> model_;
};

} // namespace quillmere
