#include "Quillmere/app/WindowKeeper.h"

#include "Platform/preferences/MemoryPreferences.h"

#include <QtCore/QEvent>
#include <QtGui/QGuiApplication>
#include <QtGui/QWindow>
#include <QtTest/QSignalSpy>

#include <gtest/gtest.h>

namespace quillmere {
namespace {

class WindowKeeperTest : public testing::Test {
public:
    WindowKeeperTest() {
        keeper_.keep(window_);
        window_.show();
    }

protected:
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
        window_.close();
        EXPECT_EQ(window_.isVisible(), row.isKept);
        EXPECT_EQ(quits_.count(), row.quits);
    }
}

TEST_F(WindowKeeperTest, AHiddenProgramComesBackWhenItGetsOutOfReach) {
    closesToTray(true);
    keeper_.check();
    window_.close();
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
    window_.close();
    EXPECT_EQ(quits_.count(), 0);
    closesToTray(true);
    isOutOfReach_ = true;
    settings.close();
    EXPECT_EQ(returns_.count(), 1) << "otherwise nothing would be left";
    EXPECT_EQ(quits_.count(), 0);
}

TEST_F(WindowKeeperTest, APanelThatClosesOverAHiddenProgramDecidesNothing) {
    closesToTray(true);
    window_.close();
    closesToTray(false);
    QWindow panel;
    panel.show();
    panel.close();
    EXPECT_EQ(quits_.count(), 0);
}

TEST_F(WindowKeeperTest, AKeptWindowDoesNotStandInTheWayOfQuitting) {
    closesToTray(true);
    isOutOfReach_ = true;
    QEvent quit(QEvent::Quit);
    QCoreApplication::sendEvent(qGuiApp, &quit);
    EXPECT_FALSE(window_.isVisible());
}

} // namespace
} // namespace quillmere
