#include "Quillmere/app/KeyRepeat.h"

#include <QtGui/QKeyEvent>

namespace quillmere {

bool KeyRepeat::isRepeated(const QKeyEvent& event) {
    if (event.type() == QEvent::KeyRelease) {
        key_ = event.key();
        releasedAt_ = event.timestamp();
        return event.isAutoRepeat();
    }
    return event.isAutoRepeat() ||
           (releasedAt_ != 0 && event.timestamp() == releasedAt_ && event.key() == key_);
}

} // namespace quillmere
