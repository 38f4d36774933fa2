#include "Quillmere/controls/SurfaceImage.h"

#include "Quillmere/controls/Blur.h"

#include <QtGui/QPainter>

#include <algorithm>
#include <cmath>
#include <vector>

namespace quillmere {

namespace {

// The straight part between the corners of what is drawn before stretching, in device pixels.
constexpr int middle = 4;

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

QImage drawn(const SurfaceLook& look, const QSize& pixels, qreal scale) {
    const int margin = surfaceMargin(look, scale);
    const QRect inner = QRect(QPoint(), pixels).adjusted(margin, margin, -margin, -margin);
    const QRectF body(QPointF(inner.topLeft()) / scale, QSizeF(inner.size()) / scale);
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

struct Span {
    int from;
    int fromLength;
    int to;
    int toLength;
};

// How a line of `drawn` pixels becomes one of `full`: its ends as they are, its middle stretched.
std::vector<Span> spans(int drawn, int full) {
    if (drawn == full) {
        return {{0, full, 0, full}};
    }
    const int end = (drawn - middle) / 2;
    return {{0, end, 0, end},
            {end, drawn - 2 * end, end, full - 2 * end},
            {drawn - end, end, full - end, end}};
}

QImage stretched(const QImage& image, const QSize& full) {
    QImage result = transparent(full);
    QPainter painter(&result);
    painter.setCompositionMode(QPainter::CompositionMode_Source);
    for (const Span& y : spans(image.height(), full.height())) {
        for (const Span& x : spans(image.width(), full.width())) {
            painter.drawImage(QRect(x.to, y.to, x.toLength, y.toLength), image,
                              QRect(x.from, y.from, x.fromLength, y.fromLength));
        }
    }
    return result;
}

} // namespace

qreal SurfaceLook::outset() const {
    return shadowBlur > 0 ? shadowBlur * 1.5 + std::abs(shadowOffset) : 0;
}

int surfaceMargin(const SurfaceLook& look, qreal scale) {
    return static_cast<int>(std::ceil(look.outset() * scale));
}

QImage surfaceImage(const SurfaceLook& look, const QSizeF& body, qreal scale) {
    const int margin = surfaceMargin(look, scale);
    const QSize full = (body * scale).toSize() + QSize(2 * margin, 2 * margin);
    // Inside of the body the shadow of a corner reaches as far as outside of it.
    const int corner = 2 * margin + static_cast<int>(std::ceil(look.corner.extent() * scale));
    const int needed = 2 * corner + middle;
    const QImage image = drawn(look, full.boundedTo(QSize(needed, needed)), scale);
    return image.size() == full ? image : stretched(image, full);
}

} // namespace quillmere
