import QtQuick
import QtQuick.Templates as T
import Quillmere.controls
import Quillmere.theme

// One of a Stepper's two buttons; held down it goes on. The stepper speaks for it.
T.AbstractButton {
    id: root

    property string symbol: ""
    property bool usable: true

    implicitWidth: 38
    autoRepeat: true
    focusPolicy: Qt.NoFocus
    hoverEnabled: true
    Accessible.ignored: true

    background: Rectangle {
        anchors.fill: parent
        anchors.margins: 1
        radius: Theme.controlRadius - 1
        color: Theme.tinted(Theme.primary, !root.usable ? 0 : root.down ? 0.08 : root.hovered ? 0.04 : 0)

        Behavior on color { FadeMotion {} }
    }

    contentItem: Item {
        Symbol {
            anchors.centerIn: parent
            name: root.symbol
            size: 13
            color: Theme.primary
            opacity: root.usable ? 1 : Theme.disabledOpacity
        }
    }
}
