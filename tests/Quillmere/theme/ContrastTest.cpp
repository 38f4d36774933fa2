#include "Quillmere/theme/Contrast.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace quillmere {

namespace {

const QColor accent = QColor::fromRgbF(0.24f, 0.72f, 0.56f);
const QColor deepAccent = QColor::fromRgbF(0.08f, 0.42f, 0.34f);
const QColor warm = QColor::fromRgbF(0.96f, 0.68f, 0.35f);
const QColor alert = QColor::fromRgbF(0.91f, 0.35f, 0.38f);

} // namespace

// Ratios as contrast checkers that follow WCAG 2.1 give them.
TEST(Contrast, isTheRatioOfWcag) {
    struct Row {
        QColor a;
        QColor b;
        double ratio;
    };
    for (const Row& row :
         {Row{Qt::black, Qt::white, 21.0}, Row{Qt::white, Qt::white, 1.0},
          Row{QColor(0x76, 0x76, 0x76), Qt::white, 4.54},
          Row{QColor(0x77, 0x77, 0x77), Qt::white, 4.48}, Row{QColor(0xff, 0, 0), Qt::white, 4.00},
          Row{QColor(0, 0, 0xff), Qt::black, 2.44}}) {
        SCOPED_TRACE((row.a.name() + " " + row.b.name()).toStdString());
        EXPECT_NEAR(contrastRatio(row.a, row.b), row.ratio, 0.005);
        EXPECT_EQ(contrastRatio(row.a, row.b), contrastRatio(row.b, row.a));
    }
}

TEST(Contrast, blendsByOpacity) {
    const QColor half = blended(QColor::fromRgbF(1, 0, 0, 0.5f), Qt::white);
    EXPECT_NEAR(half.redF(), 1, 0.001);
    EXPECT_NEAR(half.greenF(), 0.5, 0.001);
    EXPECT_EQ(half.alphaF(), 1);
}

TEST(Contrast, leavesAColourThatReadsAsItIs) {
    EXPECT_EQ(liftedToContrast(deepAccent, Qt::white, 4.5), deepAccent);
}

// Every palette colour, on both themes' surfaces: it reads afterwards, barely more than asked, and
// is still the same hue.
TEST(Contrast, liftsToTheAskedRatioAndNoFurther) {
    for (const QColor& background : {QColor(0x1b, 0x1d, 0x1c), QColor(0x2d, 0x45, 0x3c),
                                     QColor(Qt::white), QColor(0xdc, 0xf2, 0xea)}) {
        for (const QColor& color : {accent, deepAccent, warm, alert}) {
            SCOPED_TRACE((color.name() + " on " + background.name()).toStdString());
            if (contrastRatio(color, background) >= 4.5) {
                continue;
            }
            const QColor lifted = liftedToContrast(color, background, 4.5);
            EXPECT_GE(contrastRatio(lifted, background), 4.5);
            EXPECT_LT(contrastRatio(lifted, background), 4.6);
            EXPECT_NEAR(lifted.hslHueF(), color.hslHueF(), 0.05);
        }
    }
}

TEST(Contrast, givesWhiteOrBlackWhereNothingElseReads) {
    const QColor middle(0x75, 0x75, 0x75);
    EXPECT_EQ(liftedToContrast(accent, middle, 21), QColor(Qt::white));
    EXPECT_EQ(liftedToContrast(accent, Qt::white, 21), QColor(Qt::black));
}

} // namespace quillmere
