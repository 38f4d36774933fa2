import QtQuick
import QtQuick.Dialogs
import Quillmere.share

// The desktop's file dialog, or Qt's own where the desktop has none, with names and presses for
// assistive technology.
FileDialog {
    id: root

    readonly property DialogAccess access: DialogAccess {}

    function tend() {
        if (root.visible && root.parentWindow)
            root.access.tend(root.parentWindow);
    }

    onVisibleChanged: root.tend()
    onCurrentFolderChanged: root.tend()
}
