import QtQuick
import QtQuick.Dialogs
import Quillmere.share

// The desktop's file dialog, or Qt's own where the desktop has none, made fit for the keyboard and
// for assistive technology.
FileDialog {
    id: root

    readonly property DialogAccess access: DialogAccess {}

    onVisibleChanged: {
        if (root.visible && root.parentWindow)
            root.access.open(root.parentWindow);
    }
    onCurrentFolderChanged: root.access.follow()
}
