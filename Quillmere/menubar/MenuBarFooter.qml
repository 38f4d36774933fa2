import QtQuick
import Quillmere.controls
import Quillmere.theme

// The ways out of the panel.
Item {
    id: root

    signal openAppChosen()
    signal quitChosen()

    implicitHeight: line.height + Theme.spaceM + quit.height

    Divider {
        id: line

        anchors.left: parent.left
        anchors.right: parent.right
    }

    BorderedButton {
        anchors.left: parent.left
        anchors.bottom: parent.bottom
        text: qsTr("Open app")
        symbol: "arrow.up.right.square"
        onClicked: root.openAppChosen()
    }

    BorderedButton {
        id: quit

        anchors.right: parent.right
        anchors.bottom: parent.bottom
        text: qsTr("Quit")
        symbol: "power"
        onClicked: root.quitChosen()
    }
}
