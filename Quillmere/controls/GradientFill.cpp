#include "Quillmere/controls/GradientFill.h"

#include "Quillmere/controls/GradientImage.h"
#include "Quillmere/controls/RoundedPath.h"

#include <QtGui/QPainter>

namespace quillmere {

namespace {

void cutCorners(QImage& image, const QRectF& body, const Corner& corner, qreal scale) {
    QPainterPath outside; // fills what only one of its parts covers
    outside.addRect(body);
    outside.addPath(roundedPath(body, corner));
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setCompositionMode(QPainter::CompositionMode_DestinationOut);
    painter.scale(scale, scale);
    painter.fillPath(outside, Qt::black);
}

} // namespace

GradientFill::GradientFill(QQuickItem* parent) : PictureItem(parent) {
    connect(this, &GradientFill::lookChanged, this, &GradientFill::redraw);
}

PictureItem::Picture GradientFill::picture(qreal scale) const {
    const QSize pixels = (size() * scale).toSize();
    if (colors_.isEmpty() || pixels.isEmpty()) {
        return {};
    }
    QImage image = gradientImage(colors_, pixels);
    if (radius_ > 0) {
        cutCorners(image, boundingRect(), Corner::fitting(radius_, size()), scale);
    }
    return {image, boundingRect()};
}

} // namespace quillmere
