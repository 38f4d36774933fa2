#include "Quillmere/app/WindowPlacement.h"

#include <gtest/gtest.h>

namespace quillmere {

TEST(WindowPlacementTest, AWindowStaysWhereItWasUnlessItsTitleIsOutOfReach) {
    const QList<QRect> one{{0, 30, 1280, 770}}; // under a bar
    const QList<QRect> two{{0, 0, 1280, 800}, {1280, 200, 1024, 600}};
    struct Row {
        const char* name;
        QList<QRect> screens;
        QPoint left;
        QPoint back;
    };
    const Row rows[] = {
        {"inside", one, {100, 100}, {100, 100}},
        {"partly out to the left", one, {-836, 100}, {-836, 100}},
        {"partly out to the right", one, {1216, 100}, {1216, 100}},
        {"partly out to the bottom", one, {100, 790}, {100, 790}},
        {"half the title out to the top", one, {-300, 20}, {-300, 20}},
        {"too far left", one, {-837, 100}, {0, 100}},
        {"too far right", one, {1217, 100}, {380, 100}},
        {"too far down", one, {-300, 791}, {-300, 100}},
        {"the title out to the top", one, {-300, 19}, {-300, 30}},
        {"the screen is gone", one, {1500, 900}, {380, 100}},
        {"on the second screen", two, {1500, 300}, {1500, 300}},
        {"from the first into the second", two, {1200, 100}, {1200, 100}},
        {"over the second screen", two, {1300, 100}, {1300, 200}},
        {"no screen is known", {}, {100, 100}, {100, 100}},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        const QPoint back =
            WindowPlacement::place(QRect(row.left, QSize(900, 700)), 20, row.screens);
        EXPECT_TRUE(back == row.back) << back.x() << ", " << back.y();
    }
    const QRect large(-2000, -900, 1500, 900);
    EXPECT_TRUE(WindowPlacement::place(large, 20, one) == QPoint(0, 30)) << "its title is there";
}

} // namespace quillmere
