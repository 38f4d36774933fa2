#include "Quillmere/app/Application.h"

#include <QtGui/QKeyEvent>

namespace quillmere {

bool Application::notify(QObject* receiver, QEvent* event) {
    const bool isKey = event->type() == QEvent::KeyPress || event->type() == QEvent::KeyRelease;
    if (!isKey || !receiver->isWindowType()) {
        return QApplication::notify(receiver, event);
    }
    auto& key = *static_cast<QKeyEvent*>(event);
    if (keyRepeat_.isRepeated(key) == key.isAutoRepeat()) {
        return QApplication::notify(receiver, event);
    }
    QKeyEvent repeated(key.type(), key.key(), key.modifiers(), key.nativeScanCode(),
                       key.nativeVirtualKey(), key.nativeModifiers(), key.text(), true,
                       static_cast<quint16>(key.count()));
    repeated.setTimestamp(key.timestamp());
    const bool isHandled = QApplication::notify(receiver, &repeated);
    key.setAccepted(repeated.isAccepted());
    return isHandled;
}

} // namespace quillmere
