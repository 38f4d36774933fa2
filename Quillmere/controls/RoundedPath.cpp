#include "Quillmere/controls/RoundedPath.h"

#include <algorithm>

namespace quillmere {

namespace {

// How far before the corner the bend begins, in radii, and from there the reach of the control
// points that makes the curve meet the circle on the diagonal: (4 · 1.35 − 8 · 0.2929) / 3.
constexpr qreal begin = 1.35;
constexpr qreal control = 1.019;

} // namespace

Corner Corner::fitting(qreal radius, const QSizeF& size) {
    const qreal half = std::min(size.width(), size.height()) / 2;
    return {std::clamp(radius, 0.0, half), radius > 0 && radius * begin <= half};
}

qreal Corner::extent() const {
    return continuous ? radius * begin : radius;
}

QPainterPath roundedPath(const QRectF& rect, const Corner& corner) {
    QPainterPath path;
    if (!corner.continuous) {
        path.addRoundedRect(rect, corner.radius, corner.radius);
        return path;
    }
    const qreal e = corner.extent();
    const qreal c = e - corner.radius * control;
    const qreal l = rect.left();
    const qreal t = rect.top();
    const qreal r = rect.right();
    const qreal b = rect.bottom();
    path.moveTo(l + e, t);
    path.lineTo(r - e, t);
    path.cubicTo(r - c, t, r, t + c, r, t + e);
    path.lineTo(r, b - e);
    path.cubicTo(r, b - c, r - c, b, r - e, b);
    path.lineTo(l + e, b);
    path.cubicTo(l + c, b, l, b - c, l, b - e);
    path.lineTo(l, t + e);
    path.cubicTo(l, t + c, l + c, t, l + e, t);
    path.closeSubpath();
    return path;
}

} // namespace quillmere
