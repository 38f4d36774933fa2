import QtQuick
import Quillmere.controls
import Quillmere.theme

// Quiet text with a chevron that opens `menu` below itself.
ButtonBase {
    id: root

    property PopupMenu menu: null

    topPadding: 4
    bottomPadding: 4
    leftPadding: 6
    rightPadding: 6
    radius: Theme.rowRadius
    font: Theme.captionMedium
    Accessible.role: Accessible.ButtonMenu

    onClicked: root.menu.openUnder(root)
    Keys.onDownPressed: root.clicked()

    background: Rectangle {
        radius: root.radius
        color: Theme.tinted(Theme.primary, root.down ? 0.10 : root.hovered ? 0.06 : 0)
    }

    contentItem: Row {
        spacing: 6

        Text {
            anchors.verticalCenter: parent.verticalCenter
            text: root.text
            textFormat: Text.PlainText
            font: root.font
            color: Theme.secondary
            Accessible.ignored: true
        }

        Symbol {
            anchors.verticalCenter: parent.verticalCenter
            name: "chevron.down"
            size: 10
            color: Theme.secondary
        }
    }
}
