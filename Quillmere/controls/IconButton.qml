import QtQuick
import Quillmere.controls
import Quillmere.theme

// A symbol that can be pressed, 30 by 30; `text` names it. With `bordered` it looks like a button.
ButtonBase {
    id: root

    property bool bordered: false
    property real symbolSize: 16
    property color color: bordered ? Theme.primary : Theme.secondary

    padding: 0
    radius: bordered ? Theme.controlRadius : Theme.rowRadius

    background: Rectangle {
        implicitWidth: 30
        implicitHeight: 30
        radius: root.radius
        color: root.bordered
            ? (root.down ? Theme.controlPressed : root.hovered ? Theme.controlHover : Theme.control)
            : Theme.tinted(Theme.primary, root.down ? 0.12 : root.hovered ? 0.07 : 0)
        border.width: root.bordered ? Theme.hairlineWidth : 0
        border.color: Theme.controlBorder

        Behavior on color { FadeMotion {} }
    }

    contentItem: Item {
        Symbol {
            anchors.centerIn: parent
            name: root.symbol
            size: root.symbolSize
            color: root.color
        }
    }
}
