import QtQuick
import Quillmere.controls
import Quillmere.theme

// Quiet text with a chevron that opens a menu below itself: a PopupMenu that is made of `menuSource`,
// with this as its `button`, when it is first opened.
ButtonBase {
    id: root

    required property url menuSource

    property var menu: null

    topPadding: 4
    bottomPadding: 4
    leftPadding: 6
    rightPadding: 6
    radius: Theme.rowRadius
    font: Theme.captionMedium
    Accessible.role: Accessible.ButtonMenu

    onClicked: {
        if (root.menu === null)
            root.menu = Qt.createComponent(root.menuSource).createObject(root, { button: root });
        root.menu.openUnder(root);
    }
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
