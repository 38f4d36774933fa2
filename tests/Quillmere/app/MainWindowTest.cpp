#include "Platform/log/MemoryLogSink.h"
#include "Platform/preferences/MemoryPreferences.h"
#include "Quillmere/app/MainWindowModel.h"
#include "Quillmere/shell/PreferencesFollower.h"
#include "Quillmere/shell/TimeFollower.h"
#include "tests/Quillmere/shell/FakeStoreOpener.h"

#include <QtCore/QTemporaryDir>
#include <QtQml/QQmlApplicationEngine>
#include <QtQuick/QQuickItem>
#include <QtQuick/QQuickWindow>
#include <QtTest/QTest>

#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <vector>

namespace quillmere {
namespace {

class NoDesktop final : public DesktopSettings {
public:
    [[nodiscard]] DesktopLook look() const override {
        return {.prefersDark = {}, .highContrast = false, .reducedMotion = true};
    }
};

// A Loader's item is a visual child only.
const QQuickItem* findItem(const QQuickItem& item, const QString& objectName) {
    if (item.objectName() == objectName && item.isVisible()) {
        return &item;
    }
    for (const QQuickItem* child : item.childItems()) {
        if (const QQuickItem* found = findItem(*child, objectName)) {
            return found;
        }
    }
    return nullptr;
}

/// The window of the program on stores in memory.
class MainWindowTest : public testing::Test {
protected:
    void show() {
        storage_.emplace(container_, container_.make(), time_);
        model_.emplace(*storage_, appearance_,
                       MainSceneModel::Application{
                           appState_,
                           routes_,
                           preferences_,
                           prototype_,
                           {appState_, *storage_, follower_, loginItem_, QStringLiteral("1.2")}});
        QObject::connect(&engine_, &QQmlEngine::warnings, [](const QList<QQmlError>& warnings) {
            ADD_FAILURE() << warnings.first().toString().toStdString();
        });
        engine_.addImportPath(QStringLiteral("qrc:/qt/qml"));
        engine_.setInitialProperties({{QStringLiteral("model"), QVariant::fromValue(&*model_)}});
        engine_.load(QUrl(QStringLiteral("qrc:/qt/qml/Quillmere/app/MainWindow.qml")));
        ASSERT_FALSE(engine_.rootObjects().isEmpty());
    }

    ~MainWindowTest() override {
        qDeleteAll(engine_.rootObjects());
        model_.reset();
        storage_.reset();
    }

    QQuickWindow& window() { return *qobject_cast<QQuickWindow*>(engine_.rootObjects().first()); }

    bool shows(const char* objectName) {
        const QString name = QLatin1String(objectName);
        return QTest::qWaitFor([&] { return findItem(*window().contentItem(), name) != nullptr; },
                               30'000);
    }

    void completeSetup() {
        ASSERT_TRUE(shows("onboarding.screen"));
        model_->scene()->gate()->onboarding()->complete();
        ASSERT_TRUE(shows("overview.screen"));
    }

    platform::MemoryLogSink log_;
    platform::MemoryPreferences preferences_;
    platform::MemoryPreferences prototype_;
    PreferencesFollower follower_{preferences_};
    QTemporaryDir folder_;
    platform::LoginItem loginItem_{folder_.path().toStdString(), "quillmere", "Quillmere",
                                   "/bin/true"};
    platform::SystemClock clock_;
    TimeFollower time_{clock_};
    NoDesktop desktop_;
    AppearanceModel appearance_{preferences_, desktop_};
    FakeStoreOpener opener_;
    AppModelContainer container_{opener_, log_};
    AppState appState_{log_};
    RouteSelection routes_{preferences_};
    std::optional<AppStorageController> storage_;
    std::optional<MainWindowModel> model_;
    QQmlApplicationEngine engine_;
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

TEST_F(MainWindowTest, SaysSoWhenNoStoreCanBeOpened) {
    opener_.failing = {"cloud", "local", "memory"};
    show();
    EXPECT_TRUE(shows("storage.unavailable"));
    EXPECT_EQ(window().minimumSize(), QSize(620, 440));
}

} // namespace
} // namespace quillmere
