#pragma once

#include "Platform/autostart/LoginItem.h"
#include "Platform/base/Clock.h"
#include "Platform/entitlements/Entitlements.h"
#include "Platform/files/UserFolders.h"
#include "Platform/log/Log.h"
#include "Platform/preferences/FilePreferences.h"
#include "Quillmere/app/AppEngine.h"
#include "Quillmere/app/MainSceneModel.h"
#include "Quillmere/app/MenuBarExtra.h"
#include "Quillmere/app/MenuBarPanel.h"
#include "Quillmere/app/SettingsWindow.h"
#include "Quillmere/app/TerminationSignals.h"
#include "Quillmere/app/WindowKeeper.h"
#include "Quillmere/app/WindowModel.h"
#include "Quillmere/shell/AppModelContainer.h"
#include "Quillmere/shell/BuildStoreOpener.h"
#include "Quillmere/shell/PortalDesktopSettings.h"
#include "Quillmere/shell/PreferencesFollower.h"
#include "Quillmere/shell/QuillmereMacAppDelegate.h"
#include "Quillmere/shell/TimeFollower.h"
#include "Quillmere/widget/BusWidgetCenter.h"

#include <QtCore/QList>
#include <QtCore/QObject>
#include <QtCore/QUrl>
#include <QtDBus/QDBusConnection>
#include <QtQuick/QQuickWindow>

#include <memory>

namespace quillmere {

/// The application's entry, where everything is made and put together. Opens the store when it is
/// constructed; `show` brings up the main window. One per process, main thread.
class QuillmereMacApp : public QObject {
    Q_OBJECT

public:
    explicit QuillmereMacApp(const QDBusConnection& bus, QObject* parent = nullptr);
    ~QuillmereMacApp() override;

    /// Shows the main window. False when its QML cannot be loaded.
    [[nodiscard]] bool show();

public slots:
    /// Takes a deep link.
    void open(const QUrl& url);
    /// Brings the main window to the front. `token` is the desktop's permission to do so, or empty.
    void raise(const QString& token);

private:
    void onFirstFrame();
    void followPreferences();
    [[nodiscard]] WindowModel::Application windows();
    [[nodiscard]] SettingsViewModel::Services settingsServices();
    [[nodiscard]] WidgetPublisher widgetPublisher();
    [[nodiscard]] QQuickWindow* mainWindow() const { return window_.get(); }

    QDBusConnection bus_;
    AppEngine engine_; ///< early, because it reads on while the rest is made
    platform::SystemLogSink log_;
    platform::SystemClock clock_;
    platform::UserFolders folders_;
    platform::FilePreferences preferences_;
    platform::FilePreferences prototype_;
    platform::FilePreferences suite_;
    platform::LoginItem loginItem_;
    platform::FileEntitlements entitlements_;
    BusWidgetCenter widgetCenter_;
    PreferencesFollower preferencesFollower_;
    PortalDesktopSettings desktop_;
    AppearanceModel appearance_;
    TimeFollower time_;
    BuildStoreOpener opener_;
    AppModelContainer container_;
    AppState appState_;
    AppStorageController storage_;
    RouteSelection routes_;
    QuillmereMacAppDelegate delegate_;
    WindowModel mainWindowModel_;
    std::unique_ptr<QQuickWindow> window_; ///< null until shown
    SettingsWindow settingsWindow_;
    MenuBarPanel menuBarPanel_;
    std::unique_ptr<MenuBarExtra> menuBarExtra_; ///< null until the first frame
    WindowKeeper keeper_;
    TerminationSignals terminationSignals_;
};

} // namespace quillmere
