#pragma once

#include <QtGui/QPainterPath>

namespace quillmere {

/// The corner of a rounded rectangle: how it bends, and how much of each side it takes up.
struct Corner {
    qreal radius = 0;
    /// Bends continuously: begins before the corner of a circle of the radius would and passes
    /// through the same point on the diagonal. Otherwise a quarter of a circle.
    bool continuous = false;

    friend bool operator==(const Corner&, const Corner&) = default;

    /// A continuous corner where a rectangle of these sides has room for it, else a circular one,
    /// else one of half the smaller side.
    [[nodiscard]] static Corner fitting(qreal radius, const QSizeF& size);

    /// The length of each side from the corner to where it is straight.
    [[nodiscard]] qreal extent() const;
};

[[nodiscard]] QPainterPath roundedPath(const QRectF& rect, const Corner& corner);

} // namespace quillmere
