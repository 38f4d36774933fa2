import QtQuick
import Quillmere.controls
import Quillmere.theme

// A command of the application menu with its key at the far side.
PopupMenuItem {
    id: root

    property string shortcutText: ""
    // Whether the command leads to where the user is.
    property bool current: false

    implicitWidth: line.implicitWidth + shortcut.implicitWidth + Theme.spaceXL + leftPadding + rightPadding
    Accessible.description: shortcutText

    contentItem: Item {
        implicitHeight: line.implicitHeight

        MenuLine {
            id: line

            anchors.verticalCenter: parent.verticalCenter
            text: root.text
            checked: root.current
        }

        Text {
            id: shortcut

            anchors.right: parent.right
            anchors.verticalCenter: parent.verticalCenter
            text: root.shortcutText
            textFormat: Text.PlainText
            font: Theme.caption
            color: Theme.secondary
            Accessible.ignored: true
        }
    }
}
