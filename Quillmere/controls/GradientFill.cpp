#include "Quillmere/controls/GradientFill.h"

#include "Quillmere/controls/RoundedPath.h"

#include <QtGui/QPainter>

namespace quillmere {

GradientFill::GradientFill(QQuickItem* parent) : QQuickPaintedItem(parent) {
    connect(this, &GradientFill::lookChanged, this, [this] { update(); });
}

void GradientFill::paint(QPainter* painter) {
    QLinearGradient gradient(0, 0, width(), height());
    for (qsizetype i = 0; i < colors_.size(); ++i) {
        const double last = static_cast<double>(std::max<qsizetype>(1, colors_.size() - 1));
        gradient.setColorAt(static_cast<double>(i) / last, colors_[i]);
    }
    painter->setRenderHint(QPainter::Antialiasing);
    painter->fillPath(roundedPath(boundingRect(), Corner::fitting(radius_, size())), gradient);
}

} // namespace quillmere
