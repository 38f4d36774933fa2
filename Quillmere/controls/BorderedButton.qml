import QtQuick
import Quillmere.controls
import Quillmere.theme

// An ordinary button: a surface with a hairline.
ButtonBase {
    id: root

    topPadding: 6
    bottomPadding: 6
    leftPadding: 13
    rightPadding: 13
    font: Theme.subheadlineMedium

    background: Rectangle {
        implicitHeight: Theme.compactControlHeight
        radius: root.radius
        color: root.down ? Theme.controlPressed : root.hovered ? Theme.controlHover : Theme.control
        border.width: Theme.hairlineWidth
        border.color: Theme.controlBorder

        Behavior on color { FadeMotion {} }
    }

    contentItem: ButtonLabel {
        text: root.text
        symbol: root.symbol
        font: root.font
    }
}
