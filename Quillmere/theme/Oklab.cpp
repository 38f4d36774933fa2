#include "Quillmere/theme/Oklab.h"

#include <algorithm>
#include <cmath>

namespace quillmere {

namespace {

double cube(double value) {
    return value * value * value;
}

float component(double light) {
    return static_cast<float>(companded(std::clamp(light, 0.0, 1.0)));
}

} // namespace

double linearized(double component) {
    return component <= 0.03928 ? component / 12.92 : std::pow((component + 0.055) / 1.055, 2.4);
}

double companded(double light) {
    return light <= 0.0031308 ? light * 12.92 : 1.055 * std::pow(light, 1 / 2.4) - 0.055;
}

Oklab Oklab::from(const QColor& color) {
    const QColor rgb = color.toRgb();
    const double red = linearized(rgb.redF());
    const double green = linearized(rgb.greenF());
    const double blue = linearized(rgb.blueF());
    const double l = std::cbrt(0.4122214708 * red + 0.5363325363 * green + 0.0514459929 * blue);
    const double m = std::cbrt(0.2119034982 * red + 0.6806995451 * green + 0.1073969566 * blue);
    const double s = std::cbrt(0.0883024619 * red + 0.2817188376 * green + 0.6299787005 * blue);
    return {0.2104542553 * l + 0.7936177850 * m - 0.0040720468 * s,
            1.9779984951 * l - 2.4285922050 * m + 0.4505937099 * s,
            0.0259040371 * l + 0.7827717662 * m - 0.8086757660 * s};
}

Oklab Oklab::atLightness(double other) const {
    const double factor = lightness > 0 ? std::sqrt(other / lightness) : 1;
    return {other, a * factor, b * factor};
}

QColor Oklab::color() const {
    const double l = cube(lightness + 0.3963377774 * a + 0.2158037573 * b);
    const double m = cube(lightness - 0.1055613458 * a - 0.0638541728 * b);
    const double s = cube(lightness - 0.0894841775 * a - 1.2914855480 * b);
    return QColor::fromRgbF(component(4.0767416621 * l - 3.3077115913 * m + 0.2309699292 * s),
                            component(-1.2684380046 * l + 2.6097574011 * m - 0.3413193965 * s),
                            component(-0.0041960863 * l - 0.7034186147 * m + 1.7076147010 * s));
}

} // namespace quillmere
