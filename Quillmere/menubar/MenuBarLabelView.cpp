#include "Quillmere/menubar/MenuBarLabelView.h"

#include "Quillmere/menubar/MenuBarIconDigits.h"

#include <QtGui/QPainter>

#include <algorithm>
#include <cmath>
#include <utility>

namespace quillmere {

namespace {

const QString leaf = QStringLiteral("leaf.fill");
const QColor ground(20, 107, 87); // the deep accent
const QColor leafBesideFigures(140, 232, 201);
constexpr qsizetype longestHours = 4;

int share(int side, int parts) {
    return std::max(1, static_cast<int>(std::lround(static_cast<double>(side) / parts)));
}

/// The two lines of figures of a balance, and where they stand on an icon.
struct Lines {
    int height;
    int top;
    int secondTop;
    int margin;
    int width;

    static Lines on(int side) {
        const int outer = share(side, 12);
        const int height = (side - 2 * outer - share(side, 18)) / 2;
        const int margin = share(side, 20);
        return {height, outer, side - outer - height, margin, side - 2 * margin};
    }
};

} // namespace

MenuBarLabelView::MenuBarLabelView(MenuBarLabel label)
    : MenuBarIconEngine(ground), label_(std::move(label)) {
}

void MenuBarLabelView::draw(QPainter& painter, int side) const {
    if (label_.mode == MenuBarDisplayMode::logoOnly) {
        drawSymbol(painter, side, leaf);
    } else {
        drawBalance(painter, side);
    }
}

void MenuBarLabelView::drawBalance(QPainter& painter, int side) const {
    const QString hours = label_.balance.section(u':', 0, 0);
    const QString minutes = label_.balance.section(u':', 1, 1);
    if (minutes.isEmpty() || hours.size() - 1 > longestHours) {
        drawDash(painter, side);
        return;
    }
    const bool hasLeaf = label_.mode == MenuBarDisplayMode::logoAndBalance;
    const Lines lines = Lines::on(side);
    const MenuBarIconDigits digits(lines.height, lines.width);
    const QString second = hasLeaf ? minutes : u':' + minutes;
    const int secondWidth = static_cast<int>(std::ceil(digits.width(second)));
    const int leafSide =
        hasLeaf ? std::min(lines.height, lines.width - secondWidth - digits.gap()) : 0;
    const int width = std::max(static_cast<int>(std::ceil(digits.width(hours))),
                               secondWidth + (hasLeaf ? leafSide + digits.gap() : 0));
    const int left = (side - width) / 2;
    digits.drawEndingAt(painter, {left + width, lines.top}, hours);
    digits.drawEndingAt(painter, {left + width, lines.secondTop}, second);
    if (hasLeaf) {
        drawSymbol(painter,
                   {left, lines.secondTop + (lines.height - leafSide) / 2, leafSide, leafSide},
                   leaf, leafBesideFigures);
    }
}

void MenuBarLabelView::drawDash(QPainter& painter, int side) const {
    const int width = side / 2;
    const int stroke = share(side, 8);
    painter.fillRect((side - width) / 2, (side - stroke) / 2, width, stroke, Qt::white);
}

} // namespace quillmere
