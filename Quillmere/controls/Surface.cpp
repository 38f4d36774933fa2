#include "Quillmere/controls/Surface.h"

#include <QtQuick/QQuickWindow>
#include <QtQuick/QSGNinePatchNode>

#include <memory>

namespace quillmere {

Surface::Surface(QQuickItem* parent) : QQuickItem(parent) {
    setFlag(ItemHasContents);
    connect(this, &Surface::lookChanged, this, &QQuickItem::update);
}

SurfaceLook Surface::look() const {
    return {color_,       borderColor_, borderWidth_, Corner::fitting(radius_, size()),
            shadowColor_, shadowBlur_,  shadowOffset_};
}

QSGNode* Surface::updatePaintNode(QSGNode* old, UpdatePaintNodeData*) {
    std::unique_ptr<QSGNinePatchNode> node(static_cast<QSGNinePatchNode*>(old));
    if (width() <= 0 || height() <= 0) {
        return nullptr;
    }
    const bool fresh = !node;
    if (fresh) {
        node.reset(window()->createNinePatchNode());
    }
    const SurfaceLook wanted = look();
    const qreal scale = window()->effectiveDevicePixelRatio();
    if (fresh || drawnScale_ != scale || !(drawnLook_ == wanted)) {
        node->setTexture(window()->createTextureFromImage(surfaceTile(wanted, scale),
                                                          QQuickWindow::TextureHasAlphaChannel));
        node->setDevicePixelRatio(scale);
        drawnLook_ = wanted;
        drawnScale_ = scale;
    }
    const qreal out = wanted.outset();
    const qreal patch = wanted.patch();
    node->setPadding(patch, patch, patch, patch);
    node->setBounds(boundingRect().adjusted(-out, -out, out, out));
    node->update();
    return node.release();
}

void Surface::itemChange(ItemChange change, const ItemChangeData& data) {
    if (change == ItemDevicePixelRatioHasChanged || change == ItemSceneChange) {
        update();
    }
    QQuickItem::itemChange(change, data);
}

} // namespace quillmere
