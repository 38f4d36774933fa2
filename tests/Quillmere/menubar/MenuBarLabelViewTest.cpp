#include "Quillmere/menubar/MenuBarLabelView.h"

#include "Quillmere/menubar/UnavailableMenuBarLabelView.h"

#include <QtGui/QIcon>
#include <QtGui/QImage>
#include <QtGui/QPixmap>

#include <gtest/gtest.h>

#include <vector>

namespace quillmere {
namespace {

using Mode = MenuBarDisplayMode;

const std::vector<int> sides{16, 22, 24, 32, 44, 48, 64};

QImage image(const QIcon& icon, int side) {
    return icon.pixmap(QSize(side, side)).toImage().convertToFormat(QImage::Format_ARGB32);
}

QImage drawn(Mode mode, const char* balance, int side) {
    return image(QIcon(new MenuBarLabelView({true, mode, QString::fromUtf8(balance), {}})), side);
}

// Pixels as light as the figures, or as the leaf.
int lightPixels(const QImage& image, const QRect& part) {
    int count = 0;
    for (int y = part.top(); y <= part.bottom(); ++y) {
        for (int x = part.left(); x <= part.right(); ++x) {
            count += qAlpha(image.pixel(x, y)) == 255 && qGray(image.pixel(x, y)) > 170 ? 1 : 0;
        }
    }
    return count;
}

// Every column and row of pixels at the edge.
int lightPixelsAtTheEdge(const QImage& image) {
    const int all = lightPixels(image, image.rect());
    return all - lightPixels(image, image.rect().adjusted(1, 1, -1, -1));
}

TEST(MenuBarLabelViewTest, ShowsWhatTheModeSaysAtEverySizeOfATray) {
    for (const int side : sides) {
        SCOPED_TRACE(side);
        const QImage both = drawn(Mode::logoAndBalance, "+12:45", side);
        const QImage logo = drawn(Mode::logoOnly, "+12:45", side);
        const QImage balance = drawn(Mode::balanceOnly, "+12:45", side);
        EXPECT_EQ(both.size(), QSize(side, side));
        EXPECT_NE(both, logo);
        EXPECT_NE(both, balance);
        EXPECT_EQ(logo, drawn(Mode::logoOnly, "+3:00", side));
        EXPECT_NE(logo, image(QIcon(new UnavailableMenuBarLabelView), side));
        for (const QImage& icon : {both, logo, balance}) {
            EXPECT_EQ(qAlpha(icon.pixel(0, 0)), 0) << "corners are round";
            EXPECT_GT(lightPixels(icon, icon.rect()), side * side / 12) << "something to read";
        }
    }
}

TEST(MenuBarLabelViewTest, KeepsFiguresOfAnyLengthInside) {
    for (const int side : sides) {
        for (const Mode mode : {Mode::logoAndBalance, Mode::balanceOnly}) {
            for (const char* balance :
                 {"+0:00", "\u221299:59", "+100:08", "\u22128888:58", "+123456:00", "+\u2014"}) {
                SCOPED_TRACE(std::string(balance) + " at " + std::to_string(side));
                const QImage icon = drawn(mode, balance, side);
                EXPECT_EQ(lightPixelsAtTheEdge(icon), 0);
                EXPECT_GT(lightPixels(icon, icon.rect()), 0);
            }
        }
    }
}

} // namespace
} // namespace quillmere
