#include "Quillmere/controls/SymbolImage.h"
#include "Quillmere/controls/SymbolTable.h"

#include <QtCore/QFile>

#include <gtest/gtest.h>

namespace quillmere {

namespace {

int paintedPixels(const QImage& image) {
    int count = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            count += qAlpha(image.pixel(x, y)) > 0 ? 1 : 0;
        }
    }
    return count;
}

} // namespace

// Every symbol the screens name is drawn, and as something else than the mark of a missing one.
TEST(Symbol, isDrawnForEveryNameInUse) {
    const QImage missing = symbolImage("no such symbol", 32, Qt::black);
    EXPECT_GT(paintedPixels(missing), 0);
    for (const char* name : {"1.circle",
                             "arrow.down.left",
                             "arrow.up.right",
                             "bolt.fill",
                             "calendar",
                             "calendar.badge.checkmark",
                             "calendar.badge.clock",
                             "checkmark",
                             "checkmark.circle.fill",
                             "chevron.down",
                             "chevron.left",
                             "chevron.right",
                             "cross.case",
                             "ellipsis.circle",
                             "exclamationmark.circle",
                             "exclamationmark.triangle",
                             "externaldrive.badge.xmark",
                             "figure.walk",
                             "fork.knife",
                             "icloud",
                             "icloud.slash",
                             "info.circle",
                             "leaf.fill",
                             "list.bullet.rectangle",
                             "minus",
                             "number",
                             "plus",
                             "plus.forwardslash.minus",
                             "slider.horizontal.3",
                             "sun.max",
                             "tag",
                             "text.bubble"}) {
        SCOPED_TRACE(name);
        EXPECT_TRUE(QFile::exists(symbolResource(QString::fromLatin1(name))));
        const QImage image = symbolImage(name, 32, Qt::black);
        EXPECT_GT(paintedPixels(image), 15);
        EXPECT_NE(image, missing);
    }
}

TEST(Symbol, isTintedAndAsLargeAsAsked) {
    const QImage image = symbolImage("bolt.fill", 48, QColor(10, 20, 30));
    ASSERT_EQ(image.size(), QSize(48, 48));
    EXPECT_EQ(image.pixelColor(24, 24), QColor(10, 20, 30));
    EXPECT_EQ(image.pixelColor(0, 0).alpha(), 0);
}

} // namespace quillmere
