#pragma once

#include "Quillmere/share/FileShare.h"

#include <QtCore/QObject>
#include <QtCore/QPointer>
#include <QtQml/qqmlregistration.h>

namespace quillmere {

/// Drags a share's file out of the window while the pointer holds the control.
/// Main thread.
///
/// A drag has an event loop of its own, and what happens meanwhile (a deep link, a store that is
/// erased) may take the screen away with this object and the share: the drag goes on without them.
class FileDrag : public QObject {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(quillmere::FileShare* share MEMBER share_ WRITE setShare REQUIRED)
    /// Whether the pointer holds the control and has moved far enough to mean a drag.
    Q_PROPERTY(bool isHeld MEMBER isHeld_ WRITE setIsHeld)

public:
    using QObject::QObject;

    void setShare(FileShare* share);
    void setIsHeld(bool isHeld);

private:
    void onStepChanged();

    QPointer<FileShare> share_;
    bool isHeld_ = false;
};

} // namespace quillmere
