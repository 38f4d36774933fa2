#pragma once

#include <QtCore/QObject>
#include <QtQml/qqmlregistration.h>
#include <QtQuick/QQuickWindow>

class QQuickItem;

namespace quillmere {

/// Opens Qt's own file dialog to assistive technology, to which it gives nameless controls that
/// cannot be pressed. Main thread.
class DialogAccess : public QObject {
    Q_OBJECT
    QML_ELEMENT

public:
    using QObject::QObject;

    /// To be called when a dialog has opened over the window's content: tends to its controls, and
    /// to those added while it is open. Does nothing when the desktop's own dialog has opened.
    Q_INVOKABLE void tend(QQuickWindow* window);

private:
    void tendTo(QQuickItem& item);
    void tendSender();
};

} // namespace quillmere
