#include "Quillmere/controls/ReadingOrder.h"

#include <algorithm>
#include <utility>

namespace quillmere {

void ReadingOrder::setContainer(QQuickItem* container) {
    if (container_ == container) {
        return;
    }
    if (container_) {
        disconnect(container_, nullptr, this, nullptr);
    }
    container_ = container;
    if (container_) {
        connect(container_, &QQuickItem::childrenChanged, this, &ReadingOrder::schedule);
    }
    schedule();
    emit containerChanged();
}

void ReadingOrder::schedule() {
    if (!std::exchange(isScheduled_, true)) {
        QMetaObject::invokeMethod(this, &ReadingOrder::restore, Qt::QueuedConnection);
    }
}

void ReadingOrder::restore() {
    const auto isAbove = [](const QQuickItem* a, const QQuickItem* b) { return a->y() < b->y(); };
    QList<QQuickItem*> children = container_ ? container_->childItems() : QList<QQuickItem*>();
    if (!std::is_sorted(children.begin(), children.end(), isAbove)) {
        std::stable_sort(children.begin(), children.end(), isAbove);
        for (qsizetype i = 1; i < children.size(); ++i) {
            children[i]->stackAfter(children[i - 1]);
        }
    }
    isScheduled_ = false;
}

} // namespace quillmere
