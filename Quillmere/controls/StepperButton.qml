import QtQuick
import Quillmere.controls
import Quillmere.theme

// One of a Stepper's two buttons as it is drawn; the stepper answers for it.
Item {
    id: root

    property string symbol: ""
    property bool usable: true
    property bool pressed: false
    property bool hovered: false

    Rectangle {
        anchors.fill: parent
        anchors.margins: 1
        radius: Theme.controlRadius - 1
        color: Theme.tinted(Theme.primary, !root.usable ? 0 : root.pressed ? 0.08 : root.hovered ? 0.04 : 0)

        Behavior on color { FadeMotion {} }
    }

    Symbol {
        anchors.centerIn: parent
        name: root.symbol
        size: 13
        color: Theme.primary
        opacity: root.usable ? 1 : Theme.disabledOpacity
    }
}
