import QtQuick
import QtQuick.Templates as T
import Quillmere.controls
import Quillmere.theme

// One line of text. `unit` is shown at its end and is silent for accessibility; the host sets
// Accessible.name.
T.TextField {
    id: root

    property string unit: ""
    property color borderColor: Theme.controlBorder

    implicitWidth: Math.max(implicitBackgroundWidth, contentWidth + leftPadding + rightPadding)
    implicitHeight: Math.max(implicitBackgroundHeight, contentHeight + topPadding + bottomPadding)
    topPadding: 7
    bottomPadding: 7
    leftPadding: 13
    rightPadding: unitLabel.visible ? unitLabel.width + 13 + Theme.spaceS : 13
    verticalAlignment: Text.AlignVCenter
    selectByMouse: true
    opacity: enabled ? 1 : Theme.disabledOpacity
    font: Theme.body
    color: Theme.primary
    placeholderTextColor: Theme.placeholder
    selectionColor: Theme.selection
    selectedTextColor: Theme.primary
    Accessible.role: Accessible.EditableText

    background: Rectangle {
        implicitWidth: 160
        implicitHeight: Theme.controlHeight
        radius: Theme.controlRadius
        color: Theme.control
        border.width: Theme.hairlineWidth
        border.color: root.borderColor
    }

    Text {
        id: placeholder

        x: root.leftPadding
        y: root.topPadding
        width: root.width - root.leftPadding - root.rightPadding
        height: root.height - root.topPadding - root.bottomPadding
        visible: root.length === 0 && root.preeditText === ""
        text: root.placeholderText
        textFormat: Text.PlainText
        font: root.font
        color: root.placeholderTextColor
        verticalAlignment: Text.AlignVCenter
        elide: Text.ElideRight
        Accessible.ignored: true
    }

    Text {
        id: unitLabel

        anchors.right: parent.right
        anchors.rightMargin: 13
        anchors.verticalCenter: parent.verticalCenter
        visible: root.unit !== ""
        text: root.unit
        textFormat: Text.PlainText
        font: Theme.subheadline
        color: Theme.secondary
        Accessible.ignored: true
    }

    FocusRing {
        shown: root.activeFocus
    }
}
