#include "Quillmere/controls/PictureItem.h"

#include <QtQuick/QQuickWindow>
#include <QtQuick/QSGImageNode>

#include <memory>
#include <utility>

namespace quillmere {

PictureItem::PictureItem(QQuickItem* parent) : QQuickItem(parent) {
    setFlag(ItemHasContents);
}

void PictureItem::redraw() {
    stale_ = true;
    update();
}

QSGNode* PictureItem::updatePaintNode(QSGNode* old, UpdatePaintNodeData*) {
    std::unique_ptr<QSGImageNode> node(static_cast<QSGImageNode*>(old));
    if (node && !stale_) {
        return node.release();
    }
    stale_ = false;
    const Picture drawn =
        size().isEmpty() ? Picture() : picture(window()->effectiveDevicePixelRatio());
    if (drawn.image.isNull()) {
        return nullptr;
    }
    if (!node) {
        node.reset(window()->createImageNode());
        node->setOwnsTexture(true);
        node->setFiltering(QSGTexture::Linear);
    }
    node->setTexture(
        window()->createTextureFromImage(drawn.image, QQuickWindow::TextureHasAlphaChannel));
    node->setRect(drawn.place);
    return node.release();
}

void PictureItem::geometryChange(const QRectF& now, const QRectF& before) {
    if (now.size() != before.size()) {
        redraw();
    }
    QQuickItem::geometryChange(now, before);
}

void PictureItem::itemChange(ItemChange change, const ItemChangeData& data) {
    if (change == ItemDevicePixelRatioHasChanged || change == ItemSceneChange) {
        redraw();
    }
    QQuickItem::itemChange(change, data);
}

} // namespace quillmere
