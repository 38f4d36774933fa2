import QtQuick
import QtQuick.Templates as T
import Quillmere.controls
import Quillmere.theme

// A segment of a SegmentedPicker, raised while it is the choice.
T.RadioButton {
    id: root

    readonly property real radius: Theme.controlRadius - 2

    implicitWidth: Math.max(72, implicitContentWidth + leftPadding + rightPadding)
    leftPadding: Theme.spaceM
    rightPadding: Theme.spaceM
    hoverEnabled: true
    focusPolicy: checked || activeFocus ? Qt.StrongFocus : Qt.ClickFocus
    Accessible.role: Accessible.RadioButton
    Accessible.name: root.text
    // Qt 6.4 has no click() and loses what assistive technology presses.
    Accessible.onPressAction: root.choose()
    Accessible.onToggleAction: root.choose()

    function choose(): void {
        if (root.enabled)
            root.clicked();
    }

    background: Surface {
        color: root.checked ? Theme.segment
            : Theme.tinted(Theme.primary, root.down ? 0.07 : root.hovered ? 0.035 : 0)
        borderColor: Theme.controlBorder
        borderWidth: root.checked ? Theme.hairlineWidth : 0
        radius: root.radius
        shadowColor: root.checked ? Theme.shadow : "transparent"
        shadowBlur: 4
        shadowOffset: 1
    }

    contentItem: ButtonLabel {
        text: root.text
        font: root.font
        color: root.checked ? Theme.primary : Theme.secondary
    }

    FocusRing {
        shown: root.visualFocus
        radius: root.radius
    }
}
