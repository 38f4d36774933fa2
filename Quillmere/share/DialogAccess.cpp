#include "Quillmere/share/DialogAccess.h"

#include <QtQuick/QQuickItem>

#include <algorithm>

namespace quillmere {

namespace {

/// What Qt tells of the item; null while no assistive technology is there.
QObject* accessibleOf(const QQuickItem& item) {
    for (QObject* child : item.children()) {
        if (child->inherits("QQuickAccessibleAttached")) {
            return child;
        }
    }
    return nullptr;
}

QString nameOf(const QQuickItem& item) {
    if (item.objectName() == QLatin1String("fileNameTextField")) {
        return DialogAccess::tr("File name");
    }
    const bool isUpButton = item.inherits("QQuickToolButton");
    return isUpButton ? DialogAccess::tr("Enclosing folder") : QString();
}

// Popups lie beside each other in one layer; this one has a list of files in it.
bool isFileDialog(const QQuickItem& item) {
    return item.objectName() == QLatin1String("fileDialogListView") ||
           std::ranges::any_of(item.childItems(),
                               [](const QQuickItem* child) { return isFileDialog(*child); });
}

/// Before it could click a button by itself, Qt lost what assistive technology presses.
bool losesPresses(const QQuickItem& item) {
    return item.inherits("QQuickAbstractButton") && item.metaObject()->indexOfMethod("click()") < 0;
}

void tendTo(QQuickItem& item) {
    if (QObject* accessible = accessibleOf(item)) {
        const QString name = nameOf(item);
        if (!name.isEmpty()) {
            accessible->setProperty("name", name);
        }
        if (losesPresses(item)) {
            QObject::connect(accessible, SIGNAL(pressAction()), &item, SIGNAL(clicked()),
                             Qt::UniqueConnection);
        }
    }
    for (QQuickItem* child : item.childItems()) {
        tendTo(*child);
    }
}

} // namespace

void DialogAccess::tend(QQuickWindow* window) {
    for (QQuickItem* layer : window->contentItem()->childItems()) {
        for (QQuickItem* popup : layer->childItems()) {
            if (layer->inherits("QQuickOverlay") && isFileDialog(*popup)) {
                tendTo(*popup);
            }
        }
    }
}

} // namespace quillmere
