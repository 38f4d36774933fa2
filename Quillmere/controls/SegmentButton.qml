import QtQuick
import Quillmere.controls
import Quillmere.theme

// A segment of a SegmentedPicker, raised while it is the choice.
ButtonBase {
    id: root

    padding: 0
    leftPadding: Theme.spaceM
    rightPadding: Theme.spaceM
    radius: Theme.controlRadius - 2
    focusPolicy: checked ? Qt.StrongFocus : Qt.ClickFocus
    Accessible.role: Accessible.RadioButton
    Accessible.checkable: true
    Accessible.checked: root.checked
    Accessible.onToggleAction: root.clicked()

    background: Surface {
        implicitWidth: 72
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
}
