#pragma once

#include "Quillmere/settings/AdjustmentTypesViewModel.h"
#include "Quillmere/settings/DataManagementViewModel.h"
#include "Quillmere/settings/LaunchAtLogin.h"
#include "Quillmere/settings/PreferenceChoice.h"
#include "Quillmere/settings/PreferenceSwitch.h"
#include "Quillmere/settings/StorageStatus.h"

#include <QtCore/QObject>
#include <QtCore/QString>
#include <QtCore/QUrl>
#include <QtQml/qqmlregistration.h>

namespace quillmere {

class AppState;
class AppStorageController;
class PreferencesFollower;
class StoreSession;

/// The settings: of the records, of the program and of its place on the desktop. Any number may
/// exist on one session; they follow each other. Made when the screen is shown, gone with it. Main
/// thread.
class SettingsViewModel : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the application")
    Q_PROPERTY(quillmere::PreferenceChoice* theme READ theme CONSTANT)
    Q_PROPERTY(quillmere::AdjustmentTypesViewModel* adjustmentTypes READ adjustmentTypes CONSTANT)
    Q_PROPERTY(quillmere::LaunchAtLogin* launchAtLogin READ launchAtLogin CONSTANT)
    Q_PROPERTY(quillmere::PreferenceSwitch* showsMenuBarExtra READ showsMenuBarExtra CONSTANT)
    Q_PROPERTY(quillmere::PreferenceChoice* menuBarDisplayMode READ menuBarDisplayMode CONSTANT)
    Q_PROPERTY(
        quillmere::PreferenceSwitch* closesWindowToMenuBar READ closesWindowToMenuBar CONSTANT)
    Q_PROPERTY(quillmere::StorageStatus storageStatus READ storageStatus NOTIFY storageChanged)
    Q_PROPERTY(bool canRetryICloud READ canRetryICloud NOTIFY storageChanged)
    Q_PROPERTY(bool didLastICloudRetryFail READ didLastICloudRetryFail NOTIFY storageChanged)
    Q_PROPERTY(QUrl supportURL READ supportURL CONSTANT)
    Q_PROPERTY(QUrl privacyURL READ privacyURL CONSTANT)
    Q_PROPERTY(QString supportHost READ supportHost CONSTANT)
    Q_PROPERTY(QString version READ version CONSTANT)
    Q_PROPERTY(quillmere::DataManagementViewModel* dataManagement READ dataManagement CONSTANT)

public:
    /// What outlives every session.
    struct Services {
        AppState& appState;
        AppStorageController& storage;
        PreferencesFollower& preferences; ///< of the standard domain
        platform::LoginItem& loginItem;
        const platform::UserFolders& folders;
        WidgetPublisher widgets;
        QString version; ///< as the user reads it
    };

    /// Everything given must outlive the object.
    SettingsViewModel(StoreSession& session, const Services& services, QObject* parent = nullptr);

    [[nodiscard]] PreferenceChoice* theme() { return &theme_; }
    [[nodiscard]] AdjustmentTypesViewModel* adjustmentTypes() { return &adjustmentTypes_; }
    [[nodiscard]] LaunchAtLogin* launchAtLogin() { return &launchAtLogin_; }
    [[nodiscard]] PreferenceSwitch* showsMenuBarExtra() { return &showsMenuBarExtra_; }
    [[nodiscard]] PreferenceChoice* menuBarDisplayMode() { return &menuBarDisplayMode_; }
    [[nodiscard]] PreferenceSwitch* closesWindowToMenuBar() { return &closesWindowToMenuBar_; }
    [[nodiscard]] StorageStatus storageStatus() const;
    /// Whether private sync could be tried again.
    [[nodiscard]] bool canRetryICloud() const;
    [[nodiscard]] bool didLastICloudRetryFail() const;
    [[nodiscard]] static QUrl supportURL();
    [[nodiscard]] static QUrl privacyURL();
    [[nodiscard]] static QString supportHost();
    [[nodiscard]] const QString& version() const { return services_.version; }
    [[nodiscard]] DataManagementViewModel* dataManagement() { return &dataManagement_; }

    /// Called each time the screen appears: reads the state of the login item and prepares the
    /// store. A failure is reported as an issue.
    Q_INVOKABLE void appear();
    /// Tries private sync again. The session, and this object with it, is gone soon afterwards.
    Q_INVOKABLE void retryICloud();

signals:
    void storageChanged();

private:
    StoreSession& session_;
    Services services_;
    PreferenceChoice theme_;
    AdjustmentTypesViewModel adjustmentTypes_;
    LaunchAtLogin launchAtLogin_;
    PreferenceSwitch showsMenuBarExtra_;
    PreferenceChoice menuBarDisplayMode_;
    PreferenceSwitch closesWindowToMenuBar_;
    DataManagementViewModel dataManagement_;
};

} // namespace quillmere
