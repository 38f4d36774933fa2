#pragma once

#include "Quillmere/controls/RoundedPath.h"

#include <QtGui/QColor>
#include <QtGui/QImage>

namespace quillmere {

/// How a `Surface` looks; lengths in logical pixels.
struct SurfaceLook {
    QColor color = Qt::white;
    QColor borderColor = Qt::transparent;
    qreal borderWidth = 1;
    Corner corner;
    QColor shadowColor = Qt::transparent;
    qreal shadowBlur = 0;
    qreal shadowOffset = 0;

    friend bool operator==(const SurfaceLook&, const SurfaceLook&) = default;

    /// How far the shadow may reach beyond the body.
    [[nodiscard]] qreal outset() const;
};

/// A body of the given size with its shadow around it, at `scale` device pixels a logical one. The
/// margin is `surfaceMargin` on every side. Drawn with its corners only and stretched between them,
/// so that a large surface costs little more than a small one.
[[nodiscard]] QImage surfaceImage(const SurfaceLook& look, const QSizeF& body, qreal scale);

/// The room for the shadow in device pixels.
[[nodiscard]] int surfaceMargin(const SurfaceLook& look, qreal scale);

} // namespace quillmere
