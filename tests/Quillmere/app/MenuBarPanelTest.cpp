#include "Quillmere/app/MenuBarPanel.h"

#include "Quillmere/menubar/MenuBarRootViewModel.h"
#include "tests/Quillmere/app/WindowFixture.h"

#include <QtGui/QGuiApplication>
#include <QtGui/QScreen>
#include <QtTest/QSignalSpy>

#include <optional>

namespace quillmere {
namespace {

class MenuBarPanelTest : public WindowFixture {
protected:
    MenuBarPanel& panel() {
        if (!panel_) {
            openStore();
            panel_.emplace(engine_, windows());
        }
        return *panel_;
    }

    QQuickWindow& open() {
        panel().toggle(icon);
        EXPECT_TRUE(QTest::qWaitForWindowActive(panel().window()));
        return *panel().window();
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
