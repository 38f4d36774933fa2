#include "Quillmere/settings/SettingsViewModel.h"

#include "Platform/files/Files.h"
#include "Platform/files/UserFolders.h"
#include "Quillmere/settings/AppVersion.h"
#include "Quillmere/shell/AppStorageController.h"
#include "Quillmere/shell/PreferencesFollower.h"
#include "QuillmereKit/records/AppConstants.h"
#include "tests/Quillmere/dashboard/TimeBankFixture.h"
#include "tests/Quillmere/shell/FakeStoreOpener.h"
#include "tests/Quillmere/widget/CountingWidgetCenter.h"

#include <QtCore/QTemporaryDir>
#include <QtTest/QSignalSpy>
#include <QtTest/QTest>

#include <gtest/gtest.h>

#include <filesystem>
#include <memory>
#include <optional>
#include <string>

namespace quillmere {
namespace {

namespace fs = std::filesystem;

class SettingsViewModelTest : public TimeBankFixture {
protected:
    SettingsViewModel& open() {
        if (!storage_) {
            storage_.emplace(container_, container_.make(), time_);
        }
        model_ = std::make_unique<SettingsViewModel>(
            session(), SettingsViewModel::Services{appState_,
                                                   *storage_,
                                                   follower_,
                                                   loginItem_,
                                                   folders_,
                                                   {preferences_, widgets_},
                                                   QString()});
        return *model_;
    }

    fs::path entry() const {
        return fs::path(folder_.path().toStdString()) / "autostart/quillmere.desktop";
    }

    FakeStoreOpener opener_;
    AppModelContainer container_{opener_, log_};
    std::optional<AppStorageController> storage_;
    PreferencesFollower follower_{preferences_};
    QTemporaryDir folder_;
    platform::UserFolders folders_{{}, {}, folder_.path().toStdString()};
    platform::LoginItem loginItem_{folder_.path().toStdString(), "quillmere", "Quillmere",
                                   "/usr/bin/quillmere"};
    CountingWidgetCenter widgets_;
    std::unique_ptr<SettingsViewModel> model_;
};

TEST_F(SettingsViewModelTest, PreparesTheStoreWhenItAppears) {
    open().appear();
    ASSERT_NE(session().settingsRecord(), nullptr);
    EXPECT_FALSE(appState_.hasIssue());
}

TEST_F(SettingsViewModelTest, SaysSoWhenTheStoreCannotBePrepared) {
    open();
    lockStore();
    model_->appear();
    EXPECT_EQ(issueTitle(), "Couldn't prepare settings");
    EXPECT_FALSE(session().context().hasChanges());
}

TEST_F(SettingsViewModelTest, StoresChoicesAndFollowsThoseOfOthers) {
    PreferenceChoice& theme = *open().theme();
    const QSignalSpy changes(&theme, &PreferenceChoice::currentIndexChanged);
    EXPECT_EQ(theme.currentIndex(), 0);
    theme.choose(2);
    EXPECT_EQ(preferences_.string(AppConstants::appearanceKey), "dark");
    EXPECT_EQ(theme.currentIndex(), 2);
    preferences_.setString(AppConstants::appearanceKey, "light");
    EXPECT_EQ(theme.currentIndex(), 1);
    preferences_.setString(AppConstants::appearanceKey, "sepia");
    EXPECT_EQ(theme.currentIndex(), 0) << "unknown";
    EXPECT_EQ(changes.count(), 3);
    preferences_.setFailing(true);
    theme.choose(1);
    EXPECT_EQ(changes.count(), 4) << "the picker goes back";
    EXPECT_EQ(theme.currentIndex(), 0);
}

TEST_F(SettingsViewModelTest, KeepsThePreferencesOfTheTrayItem) {
    open();
    EXPECT_TRUE(model_->showsMenuBarExtra()->isOn());
    EXPECT_FALSE(model_->closesWindowToMenuBar()->isOn());
    model_->showsMenuBarExtra()->toggle();
    model_->closesWindowToMenuBar()->toggle();
    model_->menuBarDisplayMode()->choose(2);
    EXPECT_FALSE(model_->showsMenuBarExtra()->isOn());
    EXPECT_EQ(preferences_.boolean(AppConstants::showMenuBarExtraKey), false);
    EXPECT_EQ(preferences_.boolean(AppConstants::closeWindowToMenuBarKey), true);
    EXPECT_EQ(preferences_.string(AppConstants::menuBarDisplayModeKey), "balanceOnly");
    model_->showsMenuBarExtra()->toggle();
    EXPECT_EQ(preferences_.boolean(AppConstants::showMenuBarExtraKey), true);
}

TEST_F(SettingsViewModelTest, ShowsTheLoginItemAsItIsReadBack) {
    LaunchAtLogin& login = *open().launchAtLogin();
    login.toggle();
    EXPECT_TRUE(login.launchesAtLogin());
    EXPECT_FALSE(login.requiresApproval());
    EXPECT_TRUE(fs::exists(entry()));
    platform::writeFileAtomically(entry(), "[Desktop Entry]\nHidden=true\n", 0600);
    EXPECT_FALSE(login.requiresApproval()) << "read when the screen appears";
    model_->appear();
    EXPECT_TRUE(login.launchesAtLogin());
    EXPECT_TRUE(login.requiresApproval());
    login.toggle();
    EXPECT_FALSE(login.launchesAtLogin());
    EXPECT_FALSE(login.requiresApproval());
    EXPECT_FALSE(fs::exists(entry()));
}

TEST_F(SettingsViewModelTest, SaysSoWhenTheLoginItemCannotBeChanged) {
    fs::create_directories(entry() / "in the way");
    LaunchAtLogin& login = *open().launchAtLogin();
    login.toggle();
    EXPECT_EQ(issueTitle(), "Couldn't update launch at login");
    EXPECT_FALSE(login.launchesAtLogin());
}

TEST_F(SettingsViewModelTest, OffersToRetrySyncWhereThatCanHelp) {
    const struct {
        const char* name;
        std::set<std::string> failing;
        bool canRetry;
        const char* symbol;
    } rows[] = {
        {"synchronised", {}, false, "icloud"},
        {"local", {"cloud"}, true, "icloud.slash"},
        {"temporary", {"cloud", "local"}, false, "externaldrive.badge.xmark"},
        {"none", {"cloud", "local", "memory"}, false, "exclamationmark.triangle"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        model_.reset();
        storage_.reset();
        opener_.failing = row.failing;
        open();
        EXPECT_EQ(model_->canRetryICloud(), row.canRetry);
        EXPECT_EQ(model_->storageStatus().symbol, QLatin1String(row.symbol));
        EXPECT_FALSE(model_->didLastICloudRetryFail());
    }
}

TEST_F(SettingsViewModelTest, TellsThatARetryFailed) {
    opener_.failing = {"cloud"};
    open().retryICloud();
    EXPECT_TRUE(storage_->isRetryingICloud());
    EXPECT_TRUE(QTest::qWaitFor([&] { return !storage_->isRetryingICloud(); }, 30'000));
    EXPECT_TRUE(model_->didLastICloudRetryFail());
}

TEST(AppVersion, isTheShortVersionWithTheBuildNumber) {
    const char* const rows[][3] = {{"1.2", "45", "1.2 (45)"},
                                   {"2.0", "", "2.0"},
                                   {"", "", "Unavailable"},
                                   {"", "7", "Unavailable"}};
    for (const auto& [version, build, text] : rows) {
        EXPECT_EQ(AppVersion::text(QLatin1String(version), QLatin1String(build)).toStdString(),
                  text);
    }
}

} // namespace
} // namespace quillmere
