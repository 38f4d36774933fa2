#pragma once

#include <QtCore/QObject>
#include <QtQml/qqmlregistration.h>
#include <QtQuick/QQuickWindow>

namespace quillmere {

/// Opens Qt's own file dialog to assistive technology, to which it gives nameless controls that
/// cannot be pressed. Main thread.
class DialogAccess : public QObject {
    Q_OBJECT
    QML_ELEMENT

public:
    using QObject::QObject;

    /// To be called when a dialog has opened over the window's content, and when it shows another
    /// folder. Does nothing when the desktop's own dialog has opened. A file of the list still has
    /// no press; its path can be typed after Ctrl+L.
    Q_INVOKABLE static void tend(QQuickWindow* window);
};

} // namespace quillmere
