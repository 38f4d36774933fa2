#include "Quillmere/theme/Contrast.h"

#include "Quillmere/theme/Oklab.h"

#include <algorithm>
#include <cmath>

namespace quillmere {

namespace {

float mixed(float top, float bottom, float alpha) {
    return top * alpha + bottom * (1 - alpha);
}

} // namespace

double relativeLuminance(const QColor& color) {
    const QColor rgb = color.toRgb();
    return 0.2126 * linearized(rgb.redF()) + 0.7152 * linearized(rgb.greenF()) +
           0.0722 * linearized(rgb.blueF());
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
    const Oklab given = Oklab::from(color);
    double failing = given.lightness;
    double reading = lighten ? 1 : 0;
    // 16 halvings are finer than a colour component of 8 bits.
    for (int i = 0; i < 16; ++i) {
        const double middle = (failing + reading) / 2;
        const bool reads = contrastRatio(given.atLightness(middle).color(), background) >= ratio;
        (reads ? reading : failing) = middle;
    }
    const QColor lifted = given.atLightness(reading).color();
    if (contrastRatio(lifted, background) >= ratio) {
        return lifted;
    }
    return lighten ? Qt::white : Qt::black;
}

} // namespace quillmere
