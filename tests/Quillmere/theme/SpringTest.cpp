#include "Quillmere/theme/Spring.h"

#include <QtCore/QEasingCurve>

#include <gtest/gtest.h>

#include <algorithm>
#include <numbers>

namespace quillmere {

namespace {

constexpr double stiffness = (2 * std::numbers::pi / 0.5) * (2 * std::numbers::pi / 0.5);
constexpr double damping = 4 * std::numbers::pi * 0.85 / 0.5;

// The equation of motion of a mass of 1 on the spring, solved by small steps.
double simulated(double seconds) {
    constexpr double step = 1e-5;
    double position = 0;
    double velocity = 0;
    for (double time = 0; time < seconds; time += step) {
        velocity += (stiffness * (1 - position) - damping * velocity) * step;
        position += velocity * step;
    }
    return position;
}

} // namespace

TEST(Spring, movesAsTheEquationOfMotionSays) {
    for (const double seconds : {0.02, 0.1, 0.2, 0.3, 0.45, 0.6}) {
        SCOPED_TRACE(seconds);
        EXPECT_NEAR(Spring::position(seconds), simulated(seconds), 1e-3);
    }
}

TEST(Spring, easesAsItMoves) {
    const QEasingCurve curve = Spring::easing();
    const double total = Spring::duration() / 1000.0;
    EXPECT_EQ(curve.valueForProgress(0), 0);
    EXPECT_NEAR(curve.valueForProgress(0.5), simulated(total / 2), 1e-3);
    EXPECT_NEAR(Spring::position(total), 1, 1e-3) << "nothing is seen of its end";
    EXPECT_EQ(curve.valueForProgress(1), 1);
}

TEST(Spring, overshootsALittle) {
    double highest = 0;
    for (double time = 0; time < 1; time += 0.001) {
        highest = std::max(highest, Spring::position(time));
    }
    // exp(−πz / √(1 − z²)) for z = 0.85
    EXPECT_NEAR(highest - 1, 0.0063, 0.0002);
}

} // namespace quillmere
