#include "Platform/files/UserFolders.h"
#include "Quillmere/app/MainSceneModel.h"
#include "Quillmere/app/SettingsWindow.h"
#include "Quillmere/dashboard/DashboardViewModel.h"
#include "Quillmere/shell/PreferencesFollower.h"
#include "QuillmereKit/maintenance/DataStoreMaintenance.h"
#include "tests/Quillmere/app/WindowFixture.h"

#include <QtCore/QPointer>
#include <QtCore/QTemporaryDir>

#include <optional>
#include <string>
#include <vector>

namespace quillmere {
namespace {

class MainWindowTest : public WindowFixture {
protected:
    void show() {
        openStore();
        model_.emplace(windows(), [this](StoreSession& session) {
            return std::make_unique<MainSceneModel>(
                session, MainSceneModel::Application{appState_, routes_, preferences_, prototype_,
                                                     services()});
        });
        settings_.emplace(engine_, windows(), [this](StoreSession& session) {
            return std::make_unique<SettingsViewModel>(session, services());
        });
        QObject::connect(&*model_, &WindowModel::settingsRequested, &*settings_,
                         &SettingsWindow::open);
        engine_.setInitialProperties({{QStringLiteral("model"), QVariant::fromValue(&*model_)}});
        engine_.load(QUrl(QStringLiteral("qrc:/qt/qml/Quillmere/app/MainWindow.qml")));
        ASSERT_FALSE(engine_.rootObjects().isEmpty());
    }

    ~MainWindowTest() override {
        settings_.reset();
        qDeleteAll(engine_.rootObjects());
        model_.reset();
        storage_.reset();
    }

    SettingsViewModel::Services services() {
        return {appState_,
                *storage_,
                follower_,
                loginItem_,
                folders_,
                {widget_, widgets_},
                QStringLiteral("1.2")};
    }

    QQuickWindow& window() { return *qobject_cast<QQuickWindow*>(engine_.rootObjects().first()); }

    using WindowFixture::shows;
    bool shows(const char* objectName) { return shows(window(), objectName); }

    void activate() {
        window().requestActivate();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window()));
    }

    const QQuickWindow& openSettings() {
        activate();
        QTest::keyClick(&window(), Qt::Key_Comma, Qt::ControlModifier);
        return *settings_->window();
    }

    void completeSetup() {
        ASSERT_TRUE(shows("onboarding.screen"));
        qobject_cast<MainSceneModel*>(model_->scene())->gate()->onboarding()->complete();
        ASSERT_TRUE(shows("overview.screen"));
    }

    platform::MemoryPreferences prototype_;
    PreferencesFollower follower_{preferences_};
    QTemporaryDir folder_;
    platform::UserFolders folders_{{}, {}, folder_.path().toStdString()};
    platform::LoginItem loginItem_{folder_.path().toStdString(), "quillmere", "Quillmere",
                                   "/bin/true"};
    std::optional<WindowModel> model_;
    std::optional<SettingsWindow> settings_;
};

TEST_F(MainWindowTest, LeadsFromTheFirstRunToTheScreens) {
    show();
    EXPECT_EQ(window().title(), QStringLiteral("Quillmere"));
    EXPECT_EQ(window().size(), QSize(980, 700));
    EXPECT_EQ(window().minimumSize(), QSize(780, 560));
    completeSetup();
    for (const auto& [route, screen] : {std::pair{AppRoute::history, "history.screen"},
                                        std::pair{AppRoute::reports, "reports.screen"},
                                        std::pair{AppRoute::settings, "settings.screen"},
                                        std::pair{AppRoute::overview, "overview.screen"}}) {
        routes_.select(route);
        EXPECT_TRUE(shows(screen)) << screen;
    }
}

// FakeStoreOpener refuses to open a store while the one before is still open.
TEST_F(MainWindowTest, LetsGoOfViewsThenModelsThenTheSessionBeforeTheStoreIsOpenedAgain) {
    opener_.failing = {"cloud"};
    show();
    completeSetup();
    opener_.failing = {};
    std::vector<std::string> gone;
    const auto note = [&gone](const QObject* object, const char* what) {
        QObject::connect(object, &QObject::destroyed, [&gone, what] { gone.emplace_back(what); });
    };
    note(storage_->session(), "session");
    note(model_->scene(), "models");
    note(findItem(*window().contentItem(), QStringLiteral("overview.screen")), "view");
    storage_->retryICloud();
    EXPECT_TRUE(shows("storage.retrying"));
    EXPECT_TRUE(shows("onboarding.screen")) << "the new store is empty";
    EXPECT_EQ(gone, (std::vector<std::string>{"view", "models", "session"}));
    EXPECT_EQ(storage_->mode(), PersistenceMode::iCloud);
    EXPECT_EQ(opener_.attempts,
              (std::vector<std::string>{"cloud shared", "local shared", "cloud shared"}));
}

TEST_F(MainWindowTest, ALinkWaitsForTheFormThatIsOpen) {
    show();
    completeSetup();
    activate();
    auto* dashboard = qobject_cast<DashboardViewModel*>(
        qobject_cast<MainSceneModel*>(model_->scene())->root()->screenModel());
    dashboard->addTime();
    ASSERT_TRUE(QTest::qWaitFor([&] { return routes_.isHeld(); }, 30'000));
    routes_.open(QUrl(QStringLiteral("quillmere://history")));
    EXPECT_EQ(routes_.selected(), AppRoute::overview);
    QTest::keyClick(&window(), Qt::Key_Escape);
    EXPECT_TRUE(shows("history.screen"));
}

TEST_F(MainWindowTest, NothingIsOpenFromBeforeAnErase) {
    show();
    completeSetup();
    const QPointer<QObject> dashboard =
        qobject_cast<MainSceneModel*>(model_->scene())->root()->screenModel();
    DataStoreMaintenance::eraseAll(storage_->session()->context());
    completeSetup();
    EXPECT_TRUE(QTest::qWaitFor([&] { return dashboard.isNull(); }, 30'000));
}

TEST_F(MainWindowTest, SaysSoWhenNoStoreCanBeOpened) {
    opener_.failing = {"cloud", "local", "memory"};
    show();
    EXPECT_TRUE(shows("storage.unavailable"));
    EXPECT_EQ(window().minimumSize(), QSize(620, 440));
}

TEST_F(MainWindowTest, OpensTheSettingsOverTheFirstRun) {
    opener_.failing = {"cloud"};
    show();
    ASSERT_TRUE(shows("onboarding.screen"));
    const QQuickWindow& settings = openSettings();
    EXPECT_EQ(settings.title(), QStringLiteral("Settings"));
    EXPECT_EQ(settings.minimumSize(), QSize(620, 580));
    EXPECT_EQ(settings.maximumSize(), QSize(620, 580));
    EXPECT_TRUE(shows(settings, "settings.screen"));
    EXPECT_EQ(&openSettings(), &settings) << "there is one only";
    storage_->retryICloud();
    EXPECT_TRUE(shows(settings, "storage.retrying"));
    EXPECT_TRUE(shows(settings, "settings.screen"));
    EXPECT_TRUE(shows("onboarding.screen"));
}

TEST_F(MainWindowTest, ClosesTheSettingsWithTheirModelAndOpensThemAnew) {
    show();
    completeSetup();
    bool isGone = false;
    const QObject* model = openSettings().property("model").value<QObject*>();
    QObject::connect(model, &QObject::destroyed, [&isGone] { isGone = true; });
    // A press only: the window is gone before the key is released.
    QTest::keyPress(settings_->window(), Qt::Key_W, Qt::ControlModifier);
    EXPECT_EQ(settings_->window(), nullptr);
    EXPECT_TRUE(QTest::qWaitFor([&] { return isGone; }, 30'000));
    EXPECT_TRUE(window().isVisible());
    EXPECT_TRUE(shows(openSettings(), "settings.screen"));
}

TEST_F(MainWindowTest, ShowsTheSmallSettingsWindowWithoutAStore) {
    opener_.failing = {"cloud", "local", "memory"};
    show();
    const QQuickWindow& settings = openSettings();
    EXPECT_TRUE(shows(settings, "storage.unavailable"));
    EXPECT_EQ(settings.minimumSize(), QSize(620, 440));
    EXPECT_EQ(settings.maximumSize(), QSize(620, 440));
}

} // namespace
} // namespace quillmere
