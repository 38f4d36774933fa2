#include "Quillmere/app/QuillmereMacApp.h"

#include "Quillmere/actions/BusNames.h"
#include "Quillmere/app/Version.h"
#include "Quillmere/settings/AppVersion.h"
#include "QuillmereKit/records/AppConstants.h"
#include "QuillmereKit/widget/WidgetSnapshotStore.h"

#include <QtCore/QDebug>
#include <QtCore/QSocketNotifier>
#include <QtCore/QThreadPool>
#include <QtGui/QDesktopServices>
#include <QtGui/QFontDatabase>
#include <QtGui/QGuiApplication>
#include <QtGui/QIcon>
#include <QtQml/QQmlComponent>

#include <filesystem>

namespace quillmere {

namespace {

const QString windowIcon = QStringLiteral(":/qt/qml/Quillmere/app/icon.svg");
const QString deepLinkScheme = QStringLiteral("quillmere");

// The first text needs the list of the system's fonts, which is long in the making: meanwhile the
// program gets on.
void listFonts() {
    QThreadPool::globalInstance()->start([] { (void)QFontDatabase::hasFamily(QString()); });
}

} // namespace

QuillmereMacApp::QuillmereMacApp(const QDBusConnection& bus, QObject* parent)
    : QObject(parent),
      bus_(bus),
      folders_(platform::UserFolders::ofEnvironment()),
      preferences_(folders_.configuration() / AppConstants::applicationIdentifier),
      prototype_(folders_.configuration() / "dev.vantor.Quillmere"),
      suite_(folders_.configuration() / AppConstants::appGroupIdentifier),
      loginItem_(folders_.configuration(), BusNames::application, BusNames::applicationName,
                 std::filesystem::read_symlink("/proc/self/exe")),
      entitlements_(platform::FileEntitlements::ofRunningProgram()),
      widgetCenter_(bus),
      preferencesFollower_(preferences_),
      desktop_(bus),
      appearance_(preferences_, desktop_),
      time_(clock_),
      opener_(entitlements_, StoreLocations::within(folders_.data())),
      container_(opener_, log_),
      appState_(log_),
      storage_(container_, container_.make(), time_, StoreSession::Reading::whenAsked),
      routes_(preferences_),
      delegate_(preferences_),
      mainWindowModel_(windows(),
                       [this](StoreSession& session) {
                           auto scene = std::make_unique<MainSceneModel>(
                               session,
                               MainSceneModel::Application{appState_, routes_, preferences_,
                                                           prototype_, settingsServices()});
                           engine_.readAhead(scene->root()->screen());
                           return scene;
                       }),
      settingsWindow_(engine_, windows(),
                      [this](StoreSession& session) {
                          return std::make_unique<SettingsViewModel>(session, settingsServices());
                      }),
      menuBarPanel_(engine_, windows()),
      keeper_(delegate_, [this] { return !menuBarExtra_ || menuBarExtra_->isMissing(); }) {
    listFonts();
    connect(&engine_, &QQmlEngine::quit, qGuiApp, &QGuiApplication::quit, Qt::QueuedConnection);
    QDesktopServices::setUrlHandler(deepLinkScheme, this, "open");
    connect(&keeper_, &WindowKeeper::mainWindowRequested, this, [this] { raise(QString()); });
    connect(&keeper_, &WindowKeeper::quitRequested, qGuiApp, &QGuiApplication::quit);
    connect(&mainWindowModel_, &WindowModel::settingsRequested, &settingsWindow_,
            &SettingsWindow::open);
    connect(&menuBarPanel_, &MenuBarPanel::settingsRequested, &settingsWindow_,
            &SettingsWindow::open);
    connect(&menuBarPanel_, &MenuBarPanel::mainWindowRequested, this, [this] { raise(QString()); });
    connect(&menuBarPanel_, &MenuBarPanel::quitRequested, qGuiApp, &QGuiApplication::quit,
            Qt::QueuedConnection);
    connect(&preferencesFollower_, &PreferencesFollower::changed, &appearance_,
            &AppearanceModel::changed);
    followPreferences();
}

QuillmereMacApp::~QuillmereMacApp() {
    QDesktopServices::unsetUrlHandler(deepLinkScheme);
}

bool QuillmereMacApp::show() {
    QQmlComponent component(&engine_,
                            QUrl(QStringLiteral("qrc:/qt/qml/Quillmere/app/MainWindow.qml")));
    desktop_.waitForFirstAnswer();
    window_.reset(qobject_cast<QQuickWindow*>(component.createWithInitialProperties(
        {{QStringLiteral("model"), QVariant::fromValue(&mainWindowModel_)}})));
    if (window_ == nullptr) {
        qWarning().noquote() << component.errorString();
        return false;
    }
    keeper_.keep(*window_);
    connect(window_.get(), &QQuickWindow::frameSwapped, this, &QuillmereMacApp::onFirstFrame,
            static_cast<Qt::ConnectionType>(Qt::QueuedConnection | Qt::SingleShotConnection));
    return true;
}

void QuillmereMacApp::open(const QUrl& url) {
    routes_.open(url);
    // The link may come from the settings window, which would hide where it led.
    if (mainWindow() != nullptr && !mainWindow()->isActive()) {
        raise(QString());
    }
}

void QuillmereMacApp::raise(const QString& token) {
    QQuickWindow* window = mainWindow();
    if (window == nullptr) {
        return;
    }
    if (!token.isEmpty()) {
        qputenv("XDG_ACTIVATION_TOKEN", token.toUtf8()); // where Qt's Wayland platform looks for it
    }
    window->setWindowStates(window->windowStates() & ~Qt::WindowMinimized);
    window->setVisible(true); // show() would make a maximized window an ordinary one
    window->raise();
    window->requestActivate();
    qunsetenv("XDG_ACTIVATION_TOKEN");
}

// What the user does not wait for. Only window managers that know no desktop files ask for the
// icon.
void QuillmereMacApp::onFirstFrame() {
    storage_.readHistory();
    QGuiApplication::setWindowIcon(QIcon(windowIcon));
    window_->setIcon(QGuiApplication::windowIcon());
    menuBarExtra_ = std::make_unique<MenuBarExtra>(bus_, storage_, preferencesFollower_);
    connect(menuBarExtra_.get(), &MenuBarExtra::changed, &keeper_, &WindowKeeper::check);
    connect(menuBarExtra_.get(), &MenuBarExtra::appeared, &keeper_, &WindowKeeper::finishStart);
    connect(menuBarExtra_.get(), &MenuBarExtra::activated, &menuBarPanel_, &MenuBarPanel::toggle);
    connect(menuBarExtra_.get(), &MenuBarExtra::composerRequested, &menuBarPanel_,
            &MenuBarPanel::open);
    connect(menuBarExtra_.get(), &MenuBarExtra::removed, &menuBarPanel_, &MenuBarPanel::close);
    connect(menuBarExtra_.get(), &MenuBarExtra::mainWindowRequested, this,
            [this] { raise(QString()); });
    connect(menuBarExtra_.get(), &MenuBarExtra::quitRequested, qGuiApp, &QGuiApplication::quit);
}

void QuillmereMacApp::followPreferences() {
    const int fd = preferences_.watchFd();
    if (fd < 0) {
        return;
    }
    auto* notifier = new QSocketNotifier(fd, QSocketNotifier::Read, this);
    connect(notifier, &QSocketNotifier::activated, this, [this] { preferences_.processChanges(); });
}

WindowModel::Application QuillmereMacApp::windows() {
    return {appState_, storage_, appearance_, routes_, {log_, widgetPublisher()}};
}

SettingsViewModel::Services QuillmereMacApp::settingsServices() {
    return {appState_,
            storage_,
            preferencesFollower_,
            loginItem_,
            folders_,
            widgetPublisher(),
            AppVersion::text(QString::fromUtf8(versionText), QString::fromUtf8(buildNumberText))};
}

WidgetPublisher QuillmereMacApp::widgetPublisher() {
    return {WidgetSnapshotStore::chosenDefaults(entitlements_, &suite_, preferences_),
            widgetCenter_};
}

} // namespace quillmere
