import QtQuick
import QtQuick.Dialogs
import Quillmere.share

// The desktop's save dialog, or Qt's own where the desktop has none. Open as long as it exists. It
// does not ask whether a file is to be replaced; the share does, for all dialogs alike.
FileDialog {
    id: root

    required property FileShare share
    required property string suffix

    fileMode: FileDialog.SaveFile
    options: FileDialog.DontConfirmOverwrite
    defaultSuffix: root.suffix
    onAccepted: root.share.choose(root.selectedFile)
    onRejected: root.share.cancel()
    Component.onCompleted: {
        root.currentFolder = root.share.suggestedFolder;
        root.selectedFile = root.share.suggestedTarget;
        root.open();
    }
}
