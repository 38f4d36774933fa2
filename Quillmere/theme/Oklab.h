#pragma once

#include <QtGui/QColor>

namespace quillmere {

/// A component of an sRGB colour, 0 … 1, as an amount of light (IEC 61966-2-1, with the threshold
/// that WCAG 2.1 gives), and back.
[[nodiscard]] double linearized(double component);
[[nodiscard]] double companded(double light);

/// A colour in Oklab (Björn Ottosson, 2020), where equal steps of lightness look equal.
struct Oklab {
    double lightness = 0; ///< 0 (black) … 1 (white)
    double a = 0;
    double b = 0;

    [[nodiscard]] static Oklab from(const QColor& color);

    /// The same hue at another lightness. The chroma follows the square root of the lightness:
    /// between keeping it, which looks grey, and keeping the saturation, which looks garish.
    [[nodiscard]] Oklab atLightness(double other) const;

    /// The nearest sRGB colour, component by component.
    [[nodiscard]] QColor color() const;
};

} // namespace quillmere
