#include "Quillmere/controls/Surface.h"

#include "Quillmere/controls/SurfaceImage.h"

namespace quillmere {

Surface::Surface(QQuickItem* parent) : PictureItem(parent) {
    connect(this, &Surface::lookChanged, this, &Surface::redraw);
}

PictureItem::Picture Surface::picture(qreal scale) const {
    const SurfaceLook look{
        color_,       borderColor_, borderWidth_, Corner::fitting(radius_, size()),
        shadowColor_, shadowBlur_,  shadowOffset_};
    const QImage image = surfaceImage(look, size(), scale);
    const qreal margin = surfaceMargin(look, scale) / scale;
    return {image, {QPointF(-margin, -margin), QSizeF(image.size()) / scale}};
}

} // namespace quillmere
