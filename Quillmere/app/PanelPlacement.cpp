#include "Quillmere/app/PanelPlacement.h"

#include <algorithm>

namespace quillmere::PanelPlacement {

namespace {

constexpr int gap = 6; ///< to the anchor and to the ends of the screen
/// Half the width of the panel with a form in it, so that it stays where it is when that opens.
constexpr int reach = 187;

int within(int wanted, int lowest, int highest) {
    return std::max(lowest, std::min(wanted, highest));
}

bool isInBarAtSide(const QRect& anchor, const QRect& available) {
    const int middle = anchor.center().x();
    return middle < available.left() || middle > available.right();
}

int left(int width, const QRect& anchor, const QRect& available) {
    const int end = available.left() + available.width();
    int wanted = 0;
    if (!isInBarAtSide(anchor, available)) {
        wanted = within(anchor.center().x(), available.left() + gap + reach, end - gap - reach) -
                 width / 2;
    } else if (anchor.center().x() < available.left()) {
        wanted = std::max(available.left(), anchor.left() + anchor.width()) + gap;
    } else {
        wanted = std::min(end, anchor.left()) - gap - width;
    }
    return within(wanted, available.left() + gap, end - gap - width);
}

int top(int height, const QRect& anchor, const QRect& available) {
    const int end = available.top() + available.height();
    const int below = anchor.top() + anchor.height();
    const bool isBeside = isInBarAtSide(anchor, available);
    const int wanted = opensUpwards(anchor, available)
                           ? (isBeside ? below : anchor.top() - gap) - height
                           : (isBeside ? anchor.top() : below + gap);
    return within(wanted, available.top() + gap, end - gap - height);
}

} // namespace

bool opensUpwards(const QRect& anchor, const QRect& available) {
    return anchor.center().y() > available.center().y();
}

int maximumHeight(const QRect& available) {
    return available.height() - 2 * gap;
}

QRect frame(const QSize& size, const QRect& anchor, const QRect& available) {
    return {QPoint(left(size.width(), anchor, available), top(size.height(), anchor, available)),
            size};
}

} // namespace quillmere::PanelPlacement
