#include "Quillmere/theme/Spring.h"

#include <cmath>
#include <numbers>

namespace quillmere {

namespace {

constexpr double frequency = 2 * std::numbers::pi / Spring::response;
constexpr double decay = Spring::dampingFraction * frequency;
constexpr int segments = 12;
// What is left of the way when the motion counts as over: half a pixel of a thousand.
constexpr double remainder = 0.0005;

double dampedFrequency() {
    return frequency * std::sqrt(1 - Spring::dampingFraction * Spring::dampingFraction);
}

} // namespace

double Spring::position(double seconds) {
    const double v = dampedFrequency();
    return 1 -
           std::exp(-decay * seconds) * (std::cos(v * seconds) + decay / v * std::sin(v * seconds));
}

double Spring::velocity(double seconds) {
    const double v = dampedFrequency();
    return std::exp(-decay * seconds) * (frequency * frequency / v) * std::sin(v * seconds);
}

int Spring::duration() {
    return static_cast<int>(std::lround(-std::log(remainder) / decay * 1000));
}

// Each segment is the cubic that has the motion's own position and velocity at both of its ends.
QList<qreal> Spring::curve() {
    const double total = duration() / 1000.0;
    const double third = total / segments / 3;
    QList<qreal> points;
    for (int i = 0; i < segments; ++i) {
        const double from = total * i / segments;
        const double to = total * (i + 1) / segments;
        const bool last = i + 1 == segments;
        const double goal = last ? 1 : position(to);
        const double arrival = last ? 0 : velocity(to);
        points << (from + third) / total << position(from) + velocity(from) * third
               << (to - third) / total << goal - arrival * third << (last ? 1 : to / total) << goal;
    }
    return points;
}

} // namespace quillmere
