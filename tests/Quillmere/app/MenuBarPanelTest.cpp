#include "Quillmere/app/MenuBarPanel.h"

#include "Platform/log/MemoryLogSink.h"
#include "Platform/preferences/MemoryPreferences.h"
#include "Quillmere/menubar/MenuBarRootViewModel.h"
#include "Quillmere/shell/TimeFollower.h"
#include "tests/Quillmere/shell/FakeStoreOpener.h"
#include "tests/Quillmere/shell/NoDesktop.h"
#include "tests/Quillmere/support/FindItem.h"
#include "tests/Quillmere/widget/CountingWidgetCenter.h"

#include <QtGui/QGuiApplication>
#include <QtGui/QScreen>
#include <QtQml/QQmlEngine>
#include <QtQuick/QQuickItem>
#include <QtQuick/QQuickWindow>
#include <QtTest/QSignalSpy>
#include <QtTest/QTest>

#include <gtest/gtest.h>

#include <optional>

namespace quillmere {
namespace {

/// The panel on stores in memory.
class MenuBarPanelTest : public testing::Test {
protected:
    MenuBarPanel& panel() {
        if (!panel_) {
            storage_.emplace(container_, container_.make(), time_);
            panel_.emplace(
                engine_,
                WindowModel::Application{
                    appState_, *storage_, appearance_, routes_, {log_, {widget_, widgets_}}});
            QObject::connect(&engine_, &QQmlEngine::warnings, [](const QList<QQmlError>& warnings) {
                ADD_FAILURE() << warnings.first().toString().toStdString();
            });
            engine_.addImportPath(QStringLiteral("qrc:/qt/qml"));
        }
        return *panel_;
    }

    QQuickWindow& open() {
        panel().toggle(icon);
        EXPECT_TRUE(QTest::qWaitForWindowActive(panel().window()));
        return *panel().window();
    }

    static bool shows(const QQuickWindow& window, const char* objectName) {
        const QString name = QLatin1String(objectName);
        return QTest::qWaitFor([&] { return findItem(*window.contentItem(), name) != nullptr; },
                               30'000);
    }

    void completeSetup() {
        panel();
        auto& context = storage_->session()->context();
        context.insert(TimeBankSettings::create(clock_)).setHasCompletedOnboarding(true);
        context.save();
    }

    /// Another window takes the keyboard.
    void leave() {
        other_.show();
        other_.requestActivate();
        EXPECT_TRUE(QTest::qWaitFor([this] { return !panel().isOpen(); }, 30'000));
    }

    const QRect icon{20, 0, 22, 22};
    platform::MemoryLogSink log_;
    platform::MemoryPreferences preferences_;
    platform::MemoryPreferences widget_;
    CountingWidgetCenter widgets_;
    platform::SystemClock clock_;
    TimeFollower time_{clock_};
    NoDesktop desktop_;
    AppearanceModel appearance_{preferences_, desktop_};
    FakeStoreOpener opener_;
    AppModelContainer container_{opener_, log_};
    AppState appState_{log_};
    RouteSelection routes_{preferences_};
    std::optional<AppStorageController> storage_;
    QQmlEngine engine_;
    QWindow other_;
    std::optional<MenuBarPanel> panel_;
};

} // namespace

TEST_F(MenuBarPanelTest, StandsInTheScreenAndLeadsToSetupFirst) {
    QQuickWindow& window = open();
    EXPECT_TRUE(shows(window, "menuBar.setup"));
    EXPECT_EQ(window.width(), 330);
    EXPECT_TRUE(window.flags().testFlag(Qt::FramelessWindowHint));
    EXPECT_TRUE(QGuiApplication::primaryScreen()->availableGeometry().contains(window.geometry()));
    QSignalSpy requested(&panel(), &MenuBarPanel::mainWindowRequested);
    QTest::keyPress(&window, Qt::Key_Return);
    EXPECT_EQ(requested.count(), 1);
    EXPECT_FALSE(panel().isOpen());
}

TEST_F(MenuBarPanelTest, GrowsWithTheFormAndClosesAfterIt) {
    completeSetup();
    panel().open(TransactionComposerMode::take, icon);
    QQuickWindow& window = *panel().window();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
    EXPECT_TRUE(shows(window, "transaction.composer"));
    EXPECT_TRUE(QTest::qWaitFor([&] { return window.width() == 374; }, 30'000));
    EXPECT_TRUE(QGuiApplication::primaryScreen()->availableGeometry().contains(window.geometry()));
    QTest::keyClick(&window, Qt::Key_Escape);
    EXPECT_TRUE(QTest::qWaitFor([&] { return window.width() == 350; }, 30'000));
    QTest::keyPress(&window, Qt::Key_Escape);
    EXPECT_FALSE(panel().isOpen());
}

TEST_F(MenuBarPanelTest, IsGoneWithItsModelsWhenTheFocusLeavesIt) {
    completeSetup();
    bool isGone = false;
    const QObject* model = open().property("model").value<WindowModel*>()->scene();
    QObject::connect(model, &QObject::destroyed, [&isGone] { isGone = true; });
    leave();
    panel().toggle(icon);
    EXPECT_FALSE(panel().isOpen()) << "the press that took the focus was on the icon";
    EXPECT_TRUE(QTest::qWaitFor([&] { return isGone; }, 30'000));
    EXPECT_TRUE(shows(open(), "menuBar.action.add"));
    panel().toggle(icon);
    EXPECT_FALSE(panel().isOpen());
}

TEST_F(MenuBarPanelTest, FollowsTheStore) {
    opener_.failing = {"cloud", "local", "memory"};
    QQuickWindow& window = open();
    EXPECT_TRUE(shows(window, "storage.unavailable"));
    EXPECT_EQ(window.width(), 330);
    opener_.failing = {"cloud"};
    storage_->retryICloud();
    EXPECT_TRUE(shows(window, "storage.retrying"));
    EXPECT_TRUE(shows(window, "menuBar.setup"));
}

} // namespace quillmere
