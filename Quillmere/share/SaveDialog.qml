import QtQuick
import QtQuick.Dialogs
import Quillmere.share

// The desktop's save dialog, or Qt's own where the desktop has none. Opens when the share wants a
// place. It does not ask whether a file is to be replaced; the share does, for all dialogs alike.
ReachableFileDialog {
    id: root

    required property FileShare share

    readonly property Connections following: Connections {
        target: root.share

        function onStepChanged() {
            if (root.share.step !== FileShare.Choosing)
                return;
            root.currentFolder = root.share.suggestedFolder;
            root.selectedFile = root.share.suggestedTarget;
            root.open();
        }
    }

    fileMode: FileDialog.SaveFile
    options: FileDialog.DontConfirmOverwrite // qmllint disable
    acceptLabel: qsTr("Save")
    onAccepted: root.share.choose(root.selectedFile)
    onRejected: root.share.cancel()
}
