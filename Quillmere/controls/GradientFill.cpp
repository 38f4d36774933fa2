#include "Quillmere/controls/GradientFill.h"

#include "Quillmere/controls/Dither.h"
#include "Quillmere/controls/RoundedPath.h"

#include <QtGui/QPainter>

namespace quillmere {

GradientFill::GradientFill(QQuickItem* parent) : QQuickPaintedItem(parent) {
    connect(this, &GradientFill::lookChanged, this, [this] { update(); });
}

void GradientFill::paint(QPainter* painter) {
    const qreal scale = painter->device()->devicePixelRatio();
    QImage image((size() * scale).toSize(), QImage::Format_RGBA64_Premultiplied);
    image.fill(Qt::transparent);
    QPainter deep(&image);
    deep.setRenderHint(QPainter::Antialiasing);
    deep.scale(scale, scale);
    deep.fillPath(roundedPath(boundingRect(), Corner::fitting(radius_, size())), gradient());
    deep.end();
    painter->drawImage(boundingRect(), dithered(image));
}

QLinearGradient GradientFill::gradient() const {
    QLinearGradient result(0, 0, width(), height());
    for (qsizetype i = 0; i < colors_.size(); ++i) {
        const double last = static_cast<double>(std::max<qsizetype>(1, colors_.size() - 1));
        result.setColorAt(static_cast<double>(i) / last, colors_[i]);
    }
    return result;
}

} // namespace quillmere
