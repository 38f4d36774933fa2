#include "Quillmere/theme/Contrast.h"

#include <algorithm>
#include <cmath>

namespace quillmere {

namespace {

double linear(double component) {
    return component <= 0.03928 ? component / 12.92 : std::pow((component + 0.055) / 1.055, 2.4);
}

float mixed(float top, float bottom, float alpha) {
    return top * alpha + bottom * (1 - alpha);
}

QColor withLightness(const QColor& color, double lightness) {
    QColor hsl = color.toHsl();
    hsl.setHslF(hsl.hslHueF(), hsl.hslSaturationF(), static_cast<float>(lightness));
    return hsl.toRgb();
}

} // namespace

double relativeLuminance(const QColor& color) {
    const QColor rgb = color.toRgb();
    return 0.2126 * linear(rgb.redF()) + 0.7152 * linear(rgb.greenF()) +
           0.0722 * linear(rgb.blueF());
}

double contrastRatio(const QColor& a, const QColor& b) {
    const auto [darker, lighter] = std::minmax({relativeLuminance(a), relativeLuminance(b)});
    return (lighter + 0.05) / (darker + 0.05);
}

QColor blended(const QColor& top, const QColor& bottom) {
    const float alpha = top.alphaF();
    return QColor::fromRgbF(mixed(top.redF(), bottom.redF(), alpha),
                            mixed(top.greenF(), bottom.greenF(), alpha),
                            mixed(top.blueF(), bottom.blueF(), alpha));
}

QColor liftedToContrast(const QColor& color, const QColor& background, double ratio) {
    if (contrastRatio(color, background) >= ratio) {
        return color;
    }
    const bool lighten =
        contrastRatio(Qt::white, background) >= contrastRatio(Qt::black, background);
    // Lightness that fails, and lightness that reads best.
    double failing = color.toHsl().lightnessF();
    double reading = lighten ? 1 : 0;
    // 16 halvings are finer than a colour component of 8 bits.
    for (int i = 0; i < 16; ++i) {
        const double middle = (failing + reading) / 2;
        const bool reads = contrastRatio(withLightness(color, middle), background) >= ratio;
        (reads ? reading : failing) = middle;
    }
    return withLightness(color, reading);
}

} // namespace quillmere
