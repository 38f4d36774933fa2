#include "Quillmere/controls/GradientImage.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <vector>

namespace quillmere {

namespace {

/// The components of a premultiplied pixel side by side, blue lowest, each in 1/256 of its 8 bits.
/// The largest is 255 · 256, which leaves room for a threshold below 256.
using DeepPixel = std::uint64_t;

constexpr DeepPixel each = 0x0001'0001'0001'0001;
constexpr DeepPixel lowBytes = 0x00FF'00FF'00FF'00FF;

// Far finer than the eye and than what scattering resolves.
constexpr int steps = 1024;
// Positions along the gradient are counted in 1/65536 of a step.
constexpr int fractionBits = 16;

// The ordered dither matrix of Bayer for 8 by 8 pixels.
constexpr std::array<std::array<std::uint8_t, 8>, 8> order{{{0, 32, 8, 40, 2, 34, 10, 42},
                                                            {48, 16, 56, 24, 50, 18, 58, 26},
                                                            {12, 44, 4, 36, 14, 46, 6, 38},
                                                            {60, 28, 52, 20, 62, 30, 54, 22},
                                                            {3, 35, 11, 43, 1, 33, 9, 41},
                                                            {51, 19, 59, 27, 49, 17, 57, 25},
                                                            {15, 47, 7, 39, 13, 45, 5, 37},
                                                            {63, 31, 55, 23, 61, 29, 53, 21}}};

DeepPixel mixed(const QColor& from, const QColor& to, float share) {
    const float fromAlpha = from.alphaF() * (1 - share);
    const float toAlpha = to.alphaF() * share;
    const auto component = [](float value) {
        return static_cast<DeepPixel>(std::lround(value * 255 * 256));
    };
    return component(from.blueF() * fromAlpha + to.blueF() * toAlpha) |
           component(from.greenF() * fromAlpha + to.greenF() * toAlpha) << 16U |
           component(from.redF() * fromAlpha + to.redF() * toAlpha) << 32U |
           component(fromAlpha + toAlpha) << 48U;
}

std::vector<DeepPixel> ramp(const QList<QColor>& colors) {
    std::vector<DeepPixel> result;
    const auto last = static_cast<float>(colors.size() - 1);
    for (int step = 0; step < steps; ++step) {
        const float at = (static_cast<float>(step) + 0.5F) / steps * last;
        const auto before = static_cast<qsizetype>(at);
        const QColor& after = colors[std::min(before + 1, colors.size() - 1)];
        result.push_back(mixed(colors[before], after, at - static_cast<float>(before)));
    }
    return result;
}

QRgb reduced(DeepPixel deep) {
    const DeepPixel bytes = deep >> 8U & lowBytes;
    const DeepPixel pairs = bytes | bytes >> 8U;
    return static_cast<QRgb>((pairs & 0xFFFFU) | (pairs >> 16U & 0xFFFF'0000U));
}

/// What the steps of the ramp become in the pixels of a line, by step and x modulo 8.
using Scattered = std::vector<std::array<QRgb, 8>>;

// The same threshold for all components keeps colours within their alpha.
Scattered scattered(const std::vector<DeepPixel>& ramp, std::size_t line) {
    Scattered result(ramp.size());
    for (std::size_t step = 0; step < ramp.size(); ++step) {
        for (std::size_t x = 0; x < 8; ++x) {
            result[step][x] = reduced(ramp[step] + each * (4U * order[line][x] + 2U));
        }
    }
    return result;
}

} // namespace

QImage gradientImage(const QList<QColor>& colors, const QSize& pixels) {
    QImage image(pixels, QImage::Format_ARGB32_Premultiplied);
    const double width = pixels.width();
    const double height = pixels.height();
    const double scale = std::ldexp(steps, fractionBits) / (width * width + height * height);
    const auto right = static_cast<std::uint32_t>(width * scale);
    const std::vector<DeepPixel> all = ramp(colors);
    for (int line = 0; line < 8; ++line) {
        const Scattered table = scattered(all, static_cast<std::size_t>(line));
        for (int y = line; y < pixels.height(); y += 8) {
            auto* to = reinterpret_cast<QRgb*>(image.scanLine(y));
            auto at = static_cast<std::uint32_t>(((y + 0.5) * height + 0.5 * width) * scale);
            for (int x = 0; x < pixels.width(); ++x, at += right) {
                to[x] = table[at >> fractionBits][static_cast<unsigned>(x) % 8];
            }
        }
    }
    return image;
}

} // namespace quillmere
