#include "Quillmere/controls/Symbol.h"

#include "Quillmere/controls/SymbolImage.h"

#include <QtQuick/QQuickWindow>
#include <QtQuick/QSGImageNode>

#include <algorithm>
#include <cmath>
#include <memory>

namespace quillmere {

Symbol::Symbol(QQuickItem* parent) : QQuickItem(parent) {
    setFlag(ItemHasContents);
    setImplicitSize(size_, size_);
}

void Symbol::setName(const QString& name) {
    if (name_ != name) {
        name_ = name;
        redraw();
        emit nameChanged();
    }
}

void Symbol::setColor(const QColor& color) {
    if (color_ != color) {
        color_ = color;
        redraw();
        emit colorChanged();
    }
}

void Symbol::setSize(qreal size) {
    if (!qFuzzyCompare(size_, size)) {
        size_ = size;
        setImplicitSize(size, size);
        emit sizeChanged();
    }
}

QSGNode* Symbol::updatePaintNode(QSGNode* old, UpdatePaintNodeData*) {
    std::unique_ptr<QSGImageNode> node(static_cast<QSGImageNode*>(old));
    const qreal side = std::min(width(), height());
    if (name_.isEmpty() || side <= 0) {
        return nullptr;
    }
    const int pixels = static_cast<int>(std::ceil(side * window()->effectiveDevicePixelRatio()));
    if (!node) {
        node.reset(window()->createImageNode());
        node->setOwnsTexture(true);
        node->setFiltering(QSGTexture::Linear);
        stale_ = true;
    }
    if (stale_ || node->texture()->textureSize().width() != pixels) {
        node->setTexture(window()->createTextureFromImage(symbolImage(name_, pixels, color_),
                                                          QQuickWindow::TextureHasAlphaChannel));
        stale_ = false;
    }
    node->setRect((width() - side) / 2, (height() - side) / 2, side, side);
    return node.release();
}

void Symbol::itemChange(ItemChange change, const ItemChangeData& data) {
    if (change == ItemDevicePixelRatioHasChanged || change == ItemSceneChange) {
        redraw();
    }
    QQuickItem::itemChange(change, data);
}

void Symbol::redraw() {
    stale_ = true;
    update();
}

} // namespace quillmere
