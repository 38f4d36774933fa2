import QtQuick
import Quillmere.controls
import Quillmere.theme

// Shown in place of a window's content while private sync is being retried.
Item {
    id: root

    // What it asks for where the window is as large as its content.
    implicitWidth: 350
    implicitHeight: column.implicitHeight + 2 * 32
    objectName: "storage.retrying"
    Accessible.role: Accessible.Pane
    Accessible.name: headline.text

    Column {
        id: column

        anchors.centerIn: parent
        width: Math.min(parent.width - 2 * 32, 480)
        spacing: 14

        ProgressRing {
            anchors.horizontalCenter: parent.horizontalCenter
            Accessible.name: headline.text
        }

        PlainText {
            id: headline

            width: parent.width
            text: qsTr("Reconnecting to iCloud…")
            font: Theme.headline
            horizontalAlignment: Text.AlignHCenter
            wrapMode: Text.Wrap
        }

        PlainText {
            width: parent.width
            text: qsTr("Your time bank remains on this device while Quillmere reconnects.")
            font: Theme.subheadline
            color: Theme.secondary
            horizontalAlignment: Text.AlignHCenter
            wrapMode: Text.Wrap
        }
    }
}
