#include "Quillmere/app/WindowPlacement.h"

#include <algorithm>
#include <limits>

namespace quillmere::WindowPlacement {

namespace {

constexpr int grip = 64; ///< how much of a title bar's width is enough to grab it

struct Span {
    int start;
    int length;
};

int common(Span one, Span other) {
    return std::min(one.start + one.length, other.start + other.length) -
           std::max(one.start, other.start);
}

int movedInto(Span screen, Span window) {
    const int last = screen.start + screen.length - window.length;
    return std::max(screen.start, std::min(window.start, last));
}

QPoint placeOn(const QRect& screen, const QRect& frame, int titleHeight) {
    const Span across{screen.left(), screen.width()};
    const Span down{screen.top(), screen.height()};
    const Span width{frame.left(), frame.width()};
    const Span title{frame.top(), titleHeight};
    const bool isFarLeftOrRight = common(across, width) < std::min(grip, frame.width());
    const bool isFarUpOrDown = common(down, title) < (titleHeight + 1) / 2;
    return {isFarLeftOrRight ? movedInto(across, width) : frame.left(),
            isFarUpOrDown ? movedInto(down, {frame.top(), frame.height()}) : frame.top()};
}

} // namespace

QPoint place(const QRect& frame, int titleHeight, const QList<QRect>& screens) {
    QPoint nearest = frame.topLeft();
    int shortest = std::numeric_limits<int>::max();
    for (const QRect& screen : screens) {
        const QPoint candidate = placeOn(screen, frame, titleHeight);
        const int way = (candidate - frame.topLeft()).manhattanLength();
        if (way < shortest) {
            shortest = way;
            nearest = candidate;
        }
    }
    return nearest;
}

} // namespace quillmere::WindowPlacement
