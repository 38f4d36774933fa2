#include "Quillmere/controls/ReadingOrder.h"

#include <algorithm>

namespace quillmere {

void ReadingOrder::restore() {
    const auto isAbove = [](const QQuickItem* a, const QQuickItem* b) { return a->y() < b->y(); };
    QList<QQuickItem*> children = container_->childItems();
    if (std::is_sorted(children.begin(), children.end(), isAbove)) {
        return;
    }
    std::stable_sort(children.begin(), children.end(), isAbove);
    for (qsizetype i = 1; i < children.size(); ++i) {
        children[i]->stackAfter(children[i - 1]);
    }
}

} // namespace quillmere
