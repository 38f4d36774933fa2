import QtQuick
import Quillmere.controls
import Quillmere.theme

// Something that is on or off. It never changes by itself: `clicked` asks the host for it, and `on`
// is what then holds. `text` is its name.
ButtonBase {
    id: root

    property bool on: false

    readonly property real gap: 2

    padding: 0
    radius: height / 2
    Accessible.role: Accessible.CheckBox
    Accessible.checkable: true
    Accessible.checked: root.on
    Accessible.onToggleAction: root.clicked()

    background: Rectangle {
        implicitWidth: 36
        implicitHeight: 21
        radius: root.radius
        color: root.on ? Theme.toggleOn : Theme.toggleOff
        border.width: Theme.highContrast ? 2 : Theme.hairlineWidth
        border.color: root.on && !Theme.highContrast ? "transparent" : Theme.controlBorder

        Behavior on color { FadeMotion {} }
    }

    contentItem: Item {
        Surface {
            x: root.on ? root.width - width - root.gap : root.gap
            y: root.gap
            width: height
            height: root.height - 2 * root.gap
            radius: height / 2
            color: Theme.knob
            borderWidth: 0
            shadowColor: Theme.knobShadow
            shadowBlur: 4
            shadowOffset: 1

            Behavior on x { SpringMotion {} }
        }
    }
}
