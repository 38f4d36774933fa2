#include "Quillmere/controls/Symbol.h"

#include "Quillmere/controls/SymbolImage.h"

#include <algorithm>
#include <cmath>

namespace quillmere {

Symbol::Symbol(QQuickItem* parent) : PictureItem(parent) {
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

PictureItem::Picture Symbol::picture(qreal scale) const {
    if (name_.isEmpty()) {
        return {};
    }
    const qreal side = std::min(width(), height());
    const int pixels = static_cast<int>(std::ceil(side * scale));
    return {symbolImage(name_, pixels, color_),
            {(width() - side) / 2, (height() - side) / 2, side, side}};
}

} // namespace quillmere
