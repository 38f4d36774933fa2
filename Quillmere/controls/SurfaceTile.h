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

    /// How far the shadow reaches beyond the body.
    [[nodiscard]] qreal outset() const;
    /// The corner part of the tile, shadow included: what is not stretched.
    [[nodiscard]] qreal patch() const;
};

/// The smallest square image of the look at `scale` device pixels a logical one: four corners of
/// `patch` and a few pixels between them that may be stretched.
[[nodiscard]] QImage surfaceTile(const SurfaceLook& look, qreal scale);

} // namespace quillmere
