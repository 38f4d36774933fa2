#include "Quillmere/app/PanelPlacement.h"

#include <gtest/gtest.h>

namespace quillmere {

TEST(PanelPlacementTest, StandsAtItsAnchorInsideTheScreenAndGrowsFromThere) {
    const QSize small(350, 240);
    const QSize grown(374, 700);
    const QRect underBar(0, 30, 1280, 770);
    const QRect overBar(0, 0, 1280, 760);
    const QRect rightOfBar(30, 0, 1250, 800);
    const QRect leftOfBar(0, 0, 1250, 800);
    const QRect second(1280, 0, 1280, 800);
    struct Case {
        const char* name;
        QRect anchor;
        QRect available;
        QPoint closed;
        QPoint open;
    };
    const Case cases[] = {
        {"under a bar at the top", {900, 4, 22, 22}, underBar, {735, 36}, {723, 36}},
        {"top right corner", {1250, 4, 22, 22}, underBar, {912, 36}, {900, 36}},
        {"bottom right corner", {1250, 769, 22, 22}, overBar, {912, 514}, {900, 54}},
        {"bottom left corner", {4, 769, 22, 22}, overBar, {18, 514}, {6, 54}},
        {"beside a bar on the left", {4, 100, 22, 22}, rightOfBar, {36, 100}, {36, 94}},
        {"beside a bar on the right", {1254, 700, 22, 22}, leftOfBar, {894, 482}, {870, 22}},
        {"at the pointer", {640, 300, 1, 1}, {0, 0, 1280, 800}, {465, 307}, {453, 94}},
        {"on the second screen", {2500, 780, 20, 20}, second, {2192, 534}, {2180, 74}},
        {"larger than the screen", {300, 290, 10, 10}, {0, 0, 320, 230}, {6, 6}, {6, 6}},
    };
    for (const Case& one : cases) {
        SCOPED_TRACE(one.name);
        EXPECT_TRUE(PanelPlacement::frame(small, one.anchor, one.available) ==
                    QRect(one.closed, small));
        EXPECT_TRUE(PanelPlacement::frame(grown, one.anchor, one.available) ==
                    QRect(one.open, grown));
    }
}

} // namespace quillmere
