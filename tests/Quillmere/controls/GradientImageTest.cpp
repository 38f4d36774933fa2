#include "Quillmere/controls/GradientImage.h"

#include <gtest/gtest.h>

namespace quillmere {

namespace {

// The mean of a component over the square of the dither pattern around a point.
double mean(const QImage& image, QPoint center, int (*component)(QRgb)) {
    double sum = 0;
    for (int i = 0; i < 64; ++i) {
        const QPoint pixel = center + QPoint(i % 8 - 4, i / 8 - 4);
        sum += component(reinterpret_cast<const QRgb*>(image.constScanLine(pixel.y()))[pixel.x()]);
    }
    return sum / 64;
}

} // namespace

// A weak gradient has a dozen levels over a thousand pixels; the pattern stands for those between.
TEST(GradientImage, meansItsColoursBetweenTheLevelsOfABit) {
    const QColor accent = QColor::fromRgbF(0.24F, 0.72F, 0.56F, 0.12F);
    const QColor warm = QColor::fromRgbF(0.96F, 0.68F, 0.35F, 0.07F);
    const QImage image = gradientImage({accent, Qt::transparent, warm}, {980, 700});
    struct Row {
        const char* name;
        double position;
        const QColor& color;
        double share;
    };
    for (const Row& row :
         {Row{"near the top left", 0.1, accent, 0.8},
          Row{"half of the way to the middle", 0.25, accent, 0.5},
          Row{"near the middle", 0.475, accent, 0.05}, Row{"behind the middle", 0.6, warm, 0.2},
          Row{"near the bottom right", 0.9, warm, 0.8}}) {
        SCOPED_TRACE(row.name);
        const QPoint at(qRound(980 * row.position), qRound(700 * row.position));
        const double alpha = row.color.alphaF() * row.share;
        EXPECT_NEAR(mean(image, at, qAlpha), 255 * alpha, 0.2);
        EXPECT_NEAR(mean(image, at, qRed), 255 * alpha * row.color.redF(), 0.2);
        EXPECT_NEAR(mean(image, at, qBlue), 255 * alpha * row.color.blueF(), 0.2);
    }
}

TEST(GradientImage, fillsEveryPixelOfEveryShape) {
    for (const QSize size : {QSize(1, 1), QSize(1, 300), QSize(4096, 3), QSize(13, 17)}) {
        SCOPED_TRACE(testing::Message() << size.width() << " x " << size.height());
        const QImage image = gradientImage({Qt::red}, size);
        ASSERT_EQ(image.size(), size);
        EXPECT_EQ(image.pixel(0, 0), QColor(Qt::red).rgba());
        EXPECT_EQ(image.pixel(size.width() - 1, size.height() - 1), QColor(Qt::red).rgba());
    }
}

} // namespace quillmere
