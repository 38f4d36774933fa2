#include "Quillmere/menubar/UnavailableMenuBarLabelView.h"

namespace quillmere {

namespace {

const QColor neutralGround(92, 99, 96);

} // namespace

UnavailableMenuBarLabelView::UnavailableMenuBarLabelView() : MenuBarIconEngine(neutralGround) {
}

void UnavailableMenuBarLabelView::draw(QPainter& painter, int side) const {
    drawSymbol(painter, side, QStringLiteral("exclamationmark.triangle"));
}

} // namespace quillmere
