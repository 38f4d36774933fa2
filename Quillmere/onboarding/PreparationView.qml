import QtQuick
import Quillmere.theme
import Quillmere.controls

// The store is being prepared.
Item {
    Column {
        anchors.centerIn: parent
        spacing: Theme.spaceM

        ProgressRing {
            anchors.horizontalCenter: parent.horizontalCenter
            Accessible.name: label.text
        }

        PlainText {
            id: label

            anchors.horizontalCenter: parent.horizontalCenter
            text: qsTr("Preparing your time bank…")
            color: Theme.secondary
        }
    }
}
