#include "Quillmere/controls/SurfaceImage.h"

#include <gtest/gtest.h>

namespace quillmere {

namespace {

SurfaceLook card(const QSizeF& body) {
    return {.color = QColor(255, 255, 255, 128),
            .borderColor = QColor(0, 0, 0, 40),
            .borderWidth = 1,
            .corner = Corner::fitting(24, body),
            .shadowColor = QColor(0, 0, 0, 60),
            .shadowBlur = 14,
            .shadowOffset = 4};
}

} // namespace

// The cheap way, corners drawn and the rest stretched, gives what drawing all of it gives.
TEST(SurfaceImage, isTheSameAtEverySizeAndScale) {
    struct Row {
        const char* name;
        QSizeF body;
        qreal scale;
    };
    for (const Row& row : {Row{"a card", {680, 237}, 1}, Row{"a card at 2x", {333, 74}, 2},
                           Row{"at 1.25x", {680, 237}, 1.25}, Row{"a pill", {120, 30}, 1},
                           Row{"smaller than its corners", {20, 20}, 2}}) {
        SCOPED_TRACE(row.name);
        const SurfaceLook look = card(row.body);
        const QImage image = surfaceImage(look, row.body, row.scale);
        const int margin = surfaceMargin(look, row.scale);
        const QSize body = (row.body * row.scale).toSize();
        ASSERT_EQ(image.size(), body + QSize(2 * margin, 2 * margin));

        const QPoint center(image.width() / 2, image.height() / 2);
        EXPECT_EQ(image.pixelColor(center).alpha(), 128) << "the shadow shows through";
        EXPECT_EQ(image.pixelColor(0, 0).alpha(), 0) << "the shadow is cut off";
        // Mirror images of each other: left and right of the body and of its shadow.
        for (const int y : {0, margin, center.y(), image.height() - 1 - margin}) {
            for (int x = 0; x < image.width() / 2; ++x) {
                ASSERT_NEAR(qAlpha(image.pixel(x, y)),
                            qAlpha(image.pixel(image.width() - 1 - x, y)), 2)
                    << x << ", " << y;
            }
        }
        EXPECT_GT(qAlpha(image.pixel(center.x(), margin + body.height() + 1)),
                  qAlpha(image.pixel(center.x(), margin - 2)))
            << "the shadow falls down";
    }
}

} // namespace quillmere
