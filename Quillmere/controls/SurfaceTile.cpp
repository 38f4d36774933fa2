#include "Quillmere/controls/SurfaceTile.h"

#include "Quillmere/controls/Blur.h"

#include <QtGui/QPainter>

#include <algorithm>
#include <cmath>

namespace quillmere {

namespace {

// The straight part between the corners, in logical pixels.
constexpr qreal middle = 4;

QImage transparent(const QSize& pixels) {
    QImage image(pixels, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    return image;
}

// The shadow alone, cut out where the body lies, so that it never shows through a translucent one.
QImage shadow(const SurfaceLook& look, const QRectF& body, const QSize& pixels, qreal scale) {
    QImage alpha(pixels, QImage::Format_Alpha8);
    alpha.fill(0);
    QPainter painter(&alpha);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(scale, scale);
    painter.fillPath(roundedPath(body.translated(0, look.shadowOffset), look.corner), Qt::black);
    painter.end();
    blur(alpha, look.shadowBlur / 2 * scale);

    QImage image = transparent(pixels);
    image.fill(look.shadowColor);
    QPainter tint(&image);
    tint.setCompositionMode(QPainter::CompositionMode_DestinationIn);
    tint.drawImage(0, 0, alpha);
    tint.setRenderHint(QPainter::Antialiasing);
    tint.setCompositionMode(QPainter::CompositionMode_DestinationOut);
    tint.scale(scale, scale);
    tint.fillPath(roundedPath(body, look.corner), Qt::black);
    return image;
}

void drawBorder(QPainter& painter, const SurfaceLook& look, const QRectF& body) {
    const qreal inset = look.borderWidth / 2;
    Corner corner = look.corner;
    corner.radius = std::max(0.0, corner.radius - inset);
    painter.strokePath(roundedPath(body.adjusted(inset, inset, -inset, -inset), corner),
                       QPen(look.borderColor, look.borderWidth));
}

} // namespace

qreal SurfaceLook::outset() const {
    return shadowBlur > 0 ? std::ceil(shadowBlur * 1.5 + std::abs(shadowOffset)) : 0;
}

qreal SurfaceLook::patch() const {
    return outset() + corner.extent();
}

QImage surfaceTile(const SurfaceLook& look, qreal scale) {
    const qreal side = 2 * look.patch() + middle;
    const QSize pixels = QSizeF(side * scale, side * scale).toSize();
    const qreal out = look.outset();
    const QRectF body = QRectF(0, 0, side, side).adjusted(out, out, -out, -out);
    QImage image = transparent(pixels);
    QPainter painter(&image);
    if (look.shadowBlur > 0) {
        painter.drawImage(0, 0, shadow(look, body, pixels, scale));
    }
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(scale, scale);
    painter.fillPath(roundedPath(body, look.corner), look.color);
    if (look.borderWidth > 0) {
        drawBorder(painter, look, body);
    }
    return image;
}

} // namespace quillmere
