#pragma once

#include <QtQuick/QQuickItem>

namespace quillmere {

/// The visible item of this name at or below `item`, or null. (`QObject::findChild` does not see a
/// Loader's item, which is a visual child only.)
inline const QQuickItem* findItem(const QQuickItem& item, const QString& objectName) {
    if (item.objectName() == objectName && item.isVisible()) {
        return &item;
    }
    for (const QQuickItem* child : item.childItems()) {
        if (const QQuickItem* found = findItem(*child, objectName)) {
            return found;
        }
    }
    return nullptr;
}

} // namespace quillmere
