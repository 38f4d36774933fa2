import QtQuick
import Quillmere.theme

// Shows where the keyboard is: a line around its parent's edge with a glow outside of it. Give it the
// parent's radius and bind `shown`.
Item {
    id: root

    property bool shown: false
    property real radius: Theme.controlRadius

    anchors.fill: parent
    visible: shown
    z: 1

    Rectangle {
        anchors.fill: parent
        anchors.margins: -3
        color: "transparent"
        radius: root.radius + 3
        border.width: 3
        border.color: Theme.focusGlow
    }

    Rectangle {
        anchors.fill: parent
        color: "transparent"
        radius: root.radius
        border.width: Theme.highContrast ? 3 : 2
        border.color: Theme.focus
    }
}
