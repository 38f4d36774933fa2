#pragma once

#include <QtCore/QObject>
#include <QtGui/QColor>
#include <QtQml/qqmlregistration.h>

namespace quillmere {

/// Relative luminance of an opaque sRGB colour, 0 (black) … 1 (white), as WCAG 2.1 defines it.
/// Alpha is ignored.
[[nodiscard]] double relativeLuminance(const QColor& color);

/// WCAG 2.1 contrast ratio of two opaque colours, 1 … 21. The order does not matter.
[[nodiscard]] double contrastRatio(const QColor& a, const QColor& b);

/// The colour `top`, with its alpha, painted over the opaque `bottom`.
[[nodiscard]] QColor blended(const QColor& top, const QColor& bottom);

/// `color` itself when it has the ratio against `background`, else the nearest lighter (on a dark
/// background) or darker colour of the same hue that has it. Where no such colour
/// exists, white or black.
[[nodiscard]] QColor liftedToContrast(const QColor& color, const QColor& background, double ratio);

/// The functions above for QML.
class Contrast : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON

public:
    using QObject::QObject;

    Q_INVOKABLE [[nodiscard]] QColor over(const QColor& top, const QColor& bottom) const {
        return blended(top, bottom);
    }
    Q_INVOKABLE [[nodiscard]] QColor lift(const QColor& color, const QColor& background,
                                          double ratio) const {
        return liftedToContrast(color, background, ratio);
    }
};

} // namespace quillmere
