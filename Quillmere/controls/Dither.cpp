#include "Quillmere/controls/Dither.h"

#include <QtGui/QRgba64>

#include <array>

namespace quillmere {

namespace {

// The ordered dither matrix of Bayer for 8 by 8 pixels.
constexpr std::array<std::array<uchar, 8>, 8> order{{{0, 32, 8, 40, 2, 34, 10, 42},
                                                     {48, 16, 56, 24, 50, 18, 58, 26},
                                                     {12, 44, 4, 36, 14, 46, 6, 38},
                                                     {60, 28, 52, 20, 62, 30, 54, 22},
                                                     {3, 35, 11, 43, 1, 33, 9, 41},
                                                     {51, 19, 59, 27, 49, 17, 57, 25},
                                                     {15, 47, 7, 39, 13, 45, 5, 37},
                                                     {63, 31, 55, 23, 61, 29, 53, 21}}};

// From 16 bits to 8, rounded up where the fraction exceeds the threshold of 64ths. The same
// threshold for all components keeps colours within their alpha.
QRgb reduced(QRgba64 color, unsigned threshold) {
    const auto component = [threshold](unsigned value) {
        return static_cast<int>((value * 255 + threshold * 1024 + 512) / 65536);
    };
    return qRgba(component(color.red()), component(color.green()), component(color.blue()),
                 component(color.alpha()));
}

} // namespace

QImage dithered(const QImage& deep) {
    QImage image(deep.size(), QImage::Format_ARGB32_Premultiplied);
    for (int y = 0; y < deep.height(); ++y) {
        const auto* from = reinterpret_cast<const QRgba64*>(deep.constScanLine(y));
        auto* to = reinterpret_cast<QRgb*>(image.scanLine(y));
        const auto& row = order[static_cast<std::size_t>(y % 8)];
        for (int x = 0; x < deep.width(); ++x) {
            to[x] = reduced(from[x], row[static_cast<std::size_t>(x % 8)]);
        }
    }
    return image;
}

} // namespace quillmere
