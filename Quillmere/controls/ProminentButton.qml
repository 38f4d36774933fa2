import QtQuick
import Quillmere.controls
import Quillmere.theme

// The one thing to do on a screen; `destructive` when it cannot be taken back.
ButtonBase {
    id: root

    property bool destructive: false

    topPadding: 10
    bottomPadding: 10
    leftPadding: Theme.spaceL
    rightPadding: Theme.spaceL
    font: Theme.headline

    background: Rectangle {
        implicitHeight: 40
        radius: root.radius
        color: root.destructive
            ? (root.down ? Theme.destructivePressed : root.hovered ? Theme.destructiveHover : Theme.destructive)
            : (root.down ? Theme.prominentPressed : root.hovered ? Theme.prominentHover : Theme.prominent)

        Behavior on color { FadeMotion {} }
    }

    contentItem: ButtonLabel {
        text: root.text
        symbol: root.symbol
        font: root.font
        color: Theme.prominentText
    }
}
