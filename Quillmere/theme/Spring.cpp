#include "Quillmere/theme/Spring.h"

#include <cmath>
#include <numbers>

namespace quillmere {

namespace {

constexpr double frequency = 2 * std::numbers::pi / Spring::response;
constexpr double decay = Spring::dampingFraction * frequency;
// What is left of the way when the motion counts as over: half a pixel of a thousand.
constexpr double remainder = 0.0005;

double dampedFrequency() {
    return frequency * std::sqrt(1 - Spring::dampingFraction * Spring::dampingFraction);
}

qreal eased(qreal progress) {
    return progress < 1 ? Spring::position(progress * Spring::duration() / 1000) : 1;
}

} // namespace

double Spring::position(double seconds) {
    const double v = dampedFrequency();
    return 1 -
           std::exp(-decay * seconds) * (std::cos(v * seconds) + decay / v * std::sin(v * seconds));
}

int Spring::duration() {
    return static_cast<int>(std::lround(-std::log(remainder) / decay * 1000));
}

QEasingCurve Spring::easing() {
    QEasingCurve curve;
    curve.setCustomType(eased);
    return curve;
}

} // namespace quillmere
