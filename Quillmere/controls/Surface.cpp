#include "Quillmere/controls/Surface.h"

#include <QtQuick/QQuickWindow>
#include <QtQuick/QSGImageNode>

#include <memory>

namespace quillmere {

Surface::Surface(QQuickItem* parent) : QQuickItem(parent) {
    setFlag(ItemHasContents);
    connect(this, &Surface::lookChanged, this, [this] { redraw(); });
}

QSGNode* Surface::updatePaintNode(QSGNode* old, UpdatePaintNodeData*) {
    std::unique_ptr<QSGImageNode> node(static_cast<QSGImageNode*>(old));
    if (width() <= 0 || height() <= 0) {
        return nullptr;
    }
    if (node && !stale_) {
        return node.release();
    }
    if (!node) {
        node.reset(window()->createImageNode());
        node->setOwnsTexture(true);
        node->setFiltering(QSGTexture::Linear);
    }
    const SurfaceLook look{
        color_,       borderColor_, borderWidth_, Corner::fitting(radius_, size()),
        shadowColor_, shadowBlur_,  shadowOffset_};
    const qreal scale = window()->effectiveDevicePixelRatio();
    const QImage image = surfaceImage(look, size(), scale);
    const qreal margin = surfaceMargin(look, scale) / scale;
    node->setTexture(window()->createTextureFromImage(image, QQuickWindow::TextureHasAlphaChannel));
    node->setRect({QPointF(-margin, -margin), QSizeF(image.size()) / scale});
    stale_ = false;
    return node.release();
}

void Surface::geometryChange(const QRectF& now, const QRectF& before) {
    if (now.size() != before.size()) {
        redraw();
    }
    QQuickItem::geometryChange(now, before);
}

void Surface::itemChange(ItemChange change, const ItemChangeData& data) {
    if (change == ItemDevicePixelRatioHasChanged || change == ItemSceneChange) {
        redraw();
    }
    QQuickItem::itemChange(change, data);
}

void Surface::redraw() {
    stale_ = true;
    update();
}

} // namespace quillmere
