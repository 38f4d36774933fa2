#include "Quillmere/menubar/MenuBarIconEngine.h"

#include "Quillmere/controls/SymbolImage.h"

#include <QtGui/QPainter>
#include <QtGui/QPixmap>

#include <algorithm>
#include <cmath>

namespace quillmere {

namespace {

constexpr double cornerShare = 0.22;
constexpr double symbolMarginShare = 0.14;

} // namespace

void MenuBarIconEngine::paint(QPainter* painter, const QRect& rect, QIcon::Mode mode,
                              QIcon::State state) {
    const double ratio = painter->device()->devicePixelRatioF();
    painter->drawPixmap(rect, pixmap((QSizeF(rect.size()) * ratio).toSize(), mode, state));
}

QPixmap MenuBarIconEngine::pixmap(const QSize& size, QIcon::Mode /*mode*/, QIcon::State /*state*/) {
    QPixmap result(size);
    result.fill(Qt::transparent);
    const int side = std::min(size.width(), size.height());
    QPainter painter(&result);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    painter.translate(QPoint(size.width() - side, size.height() - side) / 2);
    painter.setPen(Qt::NoPen);
    painter.setBrush(ground_);
    painter.drawRoundedRect(QRect(0, 0, side, side), side * cornerShare, side * cornerShare);
    painter.setPen(Qt::white);
    draw(painter, side);
    return result;
}

QList<QSize> MenuBarIconEngine::availableSizes(QIcon::Mode /*mode*/, QIcon::State /*state*/) {
    QList<QSize> sizes;
    for (const int side : {16, 22, 24, 32, 44, 48, 64, 96}) {
        sizes.append(QSize(side, side));
    }
    return sizes;
}

void MenuBarIconEngine::drawSymbol(QPainter& painter, const QRect& square, const QString& name,
                                   const QColor& color) {
    painter.drawImage(square, symbolImage(name, square.width(), color));
}

void MenuBarIconEngine::drawSymbol(QPainter& painter, int side, const QString& name) {
    const int margin = static_cast<int>(std::lround(side * symbolMarginShare));
    drawSymbol(painter, QRect(margin, margin, side - 2 * margin, side - 2 * margin), name);
}

} // namespace quillmere
