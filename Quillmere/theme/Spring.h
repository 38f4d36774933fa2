#pragma once

#include <QtCore/QEasingCurve>
#include <QtCore/QObject>
#include <QtQml/qqmlregistration.h>

namespace quillmere {

/// The motion of a damped spring as an easing curve, so that ordinary number animations follow it.
///
/// A spring of mass 1 with response R seconds and damping fraction z has the angular frequency
/// w = 2π / R, the stiffness w² and the damping 2zw. Released at rest one unit from its goal it is,
/// for z < 1, at 1 − e^(−zwt) (cos vt + (zw / v) sin vt) with v = w √(1 − z²) after t seconds.
class Spring : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    /// Time until the motion is over, in milliseconds.
    Q_PROPERTY(int duration READ duration CONSTANT)
    Q_PROPERTY(QEasingCurve easing READ easing CONSTANT)

public:
    static constexpr double response = 0.5;
    static constexpr double dampingFraction = 0.85;

    using QObject::QObject;

    /// The way done after `seconds`, where 0 is the start and 1 the goal; passes 1 slightly.
    [[nodiscard]] static double position(double seconds);

    [[nodiscard]] static int duration();
    [[nodiscard]] static QEasingCurve easing();
};

} // namespace quillmere
