#include "Quillmere/controls/ProgressArc.h"

#include <QtGui/QPainter>

#include <algorithm>

namespace quillmere {

namespace {

// QPainter counts angles in sixteenths of a degree, from three o'clock and against the clock.
constexpr int degree = 16;

} // namespace

ProgressArc::ProgressArc(QQuickItem* parent) : QQuickPaintedItem(parent) {
    connect(this, &ProgressArc::lookChanged, this, [this] { update(); });
}

void ProgressArc::paint(QPainter* painter) {
    const qreal side = std::min(width(), height());
    const qreal line = std::max(2.0, side / 11);
    const QRectF ring(line / 2, line / 2, side - line, side - line);
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(QPen(trackColor_, line));
    painter->drawEllipse(ring);
    painter->setPen(QPen(color_, line, Qt::SolidLine, Qt::RoundCap));
    painter->drawArc(ring, 90 * degree, -90 * degree);
}

} // namespace quillmere
