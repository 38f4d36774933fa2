#include "Quillmere/share/FileDrag.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QMimeData>
#include <QtGui/QDrag>

namespace quillmere {

namespace {

/// Returns when the drag has ended.
void drag(const QUrl& file) {
    auto* const data = new QMimeData;
    data->setUrls({file});
    auto* const drag = new QDrag(qApp);
    drag->setMimeData(data);
    drag->exec(Qt::CopyAction);
}

} // namespace

void FileDrag::setShare(FileShare* share) {
    share_ = share;
    connect(share, &FileShare::stepChanged, this, &FileDrag::onStepChanged);
}

void FileDrag::setIsHeld(bool isHeld) {
    isHeld_ = isHeld;
    if (isHeld) {
        share_->drag();
    } else if (share_->step() == FileShare::Writing) {
        share_->endDrag();
    }
}

void FileDrag::onStepChanged() {
    if (share_->step() != FileShare::Dragging) {
        return;
    }
    const auto start = [self = QPointer(this), share = share_] {
        if (self && self->isHeld_) {
            drag(share->draggedFile());
        }
        if (share) {
            share->endDrag();
        }
    };
    QMetaObject::invokeMethod(qApp, start, Qt::QueuedConnection);
}

} // namespace quillmere
