import QtQuick
import Quillmere.controls
import Quillmere.theme

// The one thing to do on a screen.
ButtonBase {
    id: root

    topPadding: 10
    bottomPadding: 10
    leftPadding: Theme.spaceL
    rightPadding: Theme.spaceL
    font: Theme.headline

    background: Rectangle {
        implicitHeight: 40
        radius: root.radius
        color: root.down ? Theme.prominentPressed : root.hovered ? Theme.prominentHover : Theme.prominent

        Behavior on color { FadeMotion {} }
    }

    contentItem: ButtonLabel {
        text: root.text
        symbol: root.symbol
        font: root.font
        color: Theme.prominentText
    }
}
