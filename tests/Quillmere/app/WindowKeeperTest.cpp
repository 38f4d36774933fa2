#include "Quillmere/app/WindowKeeper.h"

#include "Platform/preferences/MemoryPreferences.h"

#include <QtCore/QTimer>
#include <QtGui/QGuiApplication>
#include <QtGui/QWindow>
#include <QtTest/QSignalSpy>

#include <gtest/gtest.h>

#include <cstdlib>
#include <functional>

namespace quillmere {
namespace {

class WindowKeeperTest : public testing::Test {
public:
    WindowKeeperTest() {
        keeper_.keep(window_);
        window_.show();
    }

protected:
    /// Within the event loop, because Qt tells of the last window only there.
    static void close(QWindow& window) {
        QTimer::singleShot(0, [&window] {
            window.close();
            QCoreApplication::exit();
        });
        QCoreApplication::exec();
    }

    void closesToTray(bool does) { preferences_.setBoolean("closeWindowToMenuBar", does); }

    bool isOutOfReach_ = false;
    platform::MemoryPreferences preferences_;
    QuillmereMacAppDelegate delegate_{preferences_};
    QWindow window_;
    WindowKeeper keeper_{delegate_, [this] { return isOutOfReach_; }};
    QSignalSpy quits_{&keeper_, &WindowKeeper::quitRequested};
    QSignalSpy returns_{&keeper_, &WindowKeeper::mainWindowRequested};
};

TEST_F(WindowKeeperTest, ClosingEndsTheProgramHidesTheWindowOrKeepsIt) {
    struct Row {
        const char* name;
        bool closesToTray;
        bool isOutOfReach;
        bool isKept;
        int quits;
    };
    for (const Row& row :
         {Row{"to the tray", true, false, false, 0}, Row{"without a tray", true, true, true, 0},
          Row{"for good, without a tray", false, true, false, 1},
          Row{"for good", false, false, false, 1}}) {
        SCOPED_TRACE(row.name);
        quits_.clear();
        window_.show();
        closesToTray(row.closesToTray);
        isOutOfReach_ = row.isOutOfReach;
        close(window_);
        EXPECT_EQ(window_.isVisible(), row.isKept);
        EXPECT_EQ(quits_.count(), row.quits);
    }
}

TEST_F(WindowKeeperTest, AHiddenProgramComesBackWhenItGetsOutOfReach) {
    closesToTray(true);
    keeper_.check();
    close(window_);
    keeper_.check();
    EXPECT_EQ(returns_.count(), 0);
    isOutOfReach_ = true;
    keeper_.check();
    EXPECT_EQ(returns_.count(), 1);
    window_.show();
    keeper_.check();
    EXPECT_EQ(returns_.count(), 1) << "it is back";
}

TEST_F(WindowKeeperTest, AnotherWindowThatIsLeftAloneCountsAsTheLast) {
    QWindow settings;
    settings.show();
    close(window_);
    EXPECT_EQ(quits_.count(), 0);
    closesToTray(true);
    isOutOfReach_ = true;
    close(settings);
    EXPECT_EQ(returns_.count(), 1) << "otherwise nothing would be left";
    EXPECT_EQ(quits_.count(), 0);
}

TEST_F(WindowKeeperTest, OverAHiddenProgramAPanelThatClosesDecidesNothingAWindowDoes) {
    closesToTray(true);
    close(window_);
    closesToTray(false);
    QWindow panel;
    panel.setFlags(Qt::Tool);
    panel.show();
    close(panel);
    EXPECT_EQ(quits_.count(), 0);
    QWindow settings;
    settings.show();
    close(settings);
    EXPECT_EQ(quits_.count(), 1) << "nothing but the tray item would be left, unasked for";
}

TEST_F(WindowKeeperTest, TheStartEndsWithTheWindowInFrontUnlessTheUserTurnedAwayFromIt) {
    QWindow other; // takes the focus, and leaves it to nobody
    const auto start = [&] {
        window_.show();
        other.show();
        QCoreApplication::processEvents();
        other.close();
        QCoreApplication::processEvents();
    };
    const auto hide = [&] {
        closesToTray(true);
        window_.close();
    };
    const struct {
        const char* name;
        std::function<void()> user;
        int returns;
    } rows[] = {{"waits", [] {}, 1},
                {"goes to another window", [&] { other.show(); }, 0},
                {"minimizes it", [&] { window_.setWindowStates(Qt::WindowMinimized); }, 0},
                {"closes it", hide, 0}};
    for (const auto& [name, user, returns] : rows) {
        SCOPED_TRACE(name);
        start();
        ASSERT_EQ(QGuiApplication::focusWindow(), nullptr);
        user();
        QCoreApplication::processEvents();
        keeper_.finishStart();
        EXPECT_EQ(returns_.count(), returns);
        returns_.clear();
    }
}

TEST_F(WindowKeeperTest, AKeptWindowDoesNotStandInTheWayOfQuitting) {
    closesToTray(true);
    isOutOfReach_ = true;
    QTimer::singleShot(0, &QCoreApplication::quit);
    QTimer::singleShot(30'000, &window_, [] { QCoreApplication::exit(EXIT_FAILURE); });
    EXPECT_EQ(QCoreApplication::exec(), EXIT_SUCCESS);
}

} // namespace
} // namespace quillmere
