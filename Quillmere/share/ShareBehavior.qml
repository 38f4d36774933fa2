import QtQuick
import Quillmere.controls
import Quillmere.share

// Makes the control it lies in hand out a file: dragged out of it, or, after `share.save()`, through
// a save dialog.
Item {
    id: root

    required property FileShare share
    // What is handed out, as the dialog's title.
    required property string title
    property list<string> nameFilters

    anchors.fill: parent
    // Beneath what the control shows: above it, the handler would take its presses.
    z: -1

    FileDrag {
        share: root.share
        isHeld: handler.active
    }

    DragHandler {
        id: handler

        target: null
    }

    Connections {
        target: root.share

        function onStepChanged() {
            if (root.share.step === FileShare.Remarking)
                remark.open();
        }
    }

    SaveDialog {
        parentWindow: root.Window.window
        share: root.share
        title: root.title
        nameFilters: root.nameFilters // qmllint disable
    }

    AlertPanel {
        id: remark

        title: root.share.remarkTitle
        message: root.share.remark
        onDismissed: root.share.acceptRemark()
    }

    ConfirmationPanel {
        shown: root.share.step === FileShare.Replacing
        title: qsTr("Replace “%1”?").arg(root.share.nameToReplace)
        message: qsTr("A file with this name is already there. Replacing it overwrites what it holds.")
        confirmText: qsTr("Replace")
        onConfirmed: root.share.replace()
        onDismissed: root.share.cancel()
    }
}
