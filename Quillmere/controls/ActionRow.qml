import QtQuick
import Quillmere.controls
import Quillmere.theme

// A row of a form that does something when it is pressed. `trailingSymbol` stands at its end.
ButtonBase {
    id: root

    property color tint: Theme.accentText
    property color symbolTint: tint
    property string trailingSymbol: ""
    // The first row of its group has no hairline above it.
    property bool first: false

    readonly property int edge: 15

    implicitWidth: parent?.width ?? 0
    implicitHeight: Math.max(42, implicitContentHeight + 2 * 11)
    leftPadding: edge
    rightPadding: edge
    topInset: 4
    bottomInset: 4
    leftInset: 4
    rightInset: 4
    radius: 12
    font: Theme.body

    Divider {
        x: Theme.hairlineWidth
        width: root.width - 2 * x
        visible: !root.first
    }

    background: Rectangle {
        radius: root.radius
        color: Theme.tinted(Theme.primary, root.down ? 0.09 : root.hovered ? 0.045 : 0)

        Behavior on color { FadeMotion {} }
    }

    contentItem: Item {
        implicitHeight: label.implicitHeight

        Symbol {
            anchors.verticalCenter: parent.verticalCenter
            name: root.symbol
            size: 16
            color: root.symbolTint
        }

        Text {
            id: label

            anchors.verticalCenter: parent.verticalCenter
            x: 27
            width: parent.width - x - (trailing.visible ? trailing.width + Theme.spaceM : 0)
            text: root.text
            textFormat: Text.PlainText
            font: root.font
            color: root.tint
            wrapMode: Text.Wrap
            Accessible.ignored: true
        }

        Symbol {
            id: trailing

            anchors.verticalCenter: parent.verticalCenter
            anchors.right: parent.right
            visible: name !== ""
            name: root.trailingSymbol
            size: 12
            color: Theme.secondary
        }
    }
}
