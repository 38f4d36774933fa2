import QtQuick
import QtQuick.Templates as T
import Quillmere.controls
import Quillmere.theme

// Something that is on or off. It never changes by itself: `clicked` asks the host for it, and `on`
// is what then holds. `text` is its name.
T.CheckBox {
    id: root

    property bool on: false

    readonly property real gap: 2

    implicitWidth: 36
    implicitHeight: 21
    padding: 0
    hoverEnabled: true
    opacity: enabled ? 1 : Theme.disabledOpacity
    checked: root.on
    nextCheckState: () => root.checkState
    Accessible.role: Accessible.CheckBox
    Accessible.name: root.text
    Accessible.onPressAction: root.ask()
    Accessible.onToggleAction: root.ask()
    Keys.onReturnPressed: event => root.askByKey(event)
    Keys.onEnterPressed: event => root.askByKey(event)
    Keys.onPressed: event => event.accepted = event.isAutoRepeat && event.key === Qt.Key_Space
    Keys.onReleased: event => event.accepted = event.isAutoRepeat && event.key === Qt.Key_Space

    function ask() {
        if (root.enabled)
            root.clicked();
    }

    // A key that is held down asks once.
    function askByKey(event: KeyEvent) {
        if (!event.isAutoRepeat)
            root.clicked();
    }

    background: Rectangle {
        radius: height / 2
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

    FocusRing {
        shown: root.visualFocus
        radius: root.height / 2
    }
}
